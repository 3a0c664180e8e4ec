// SPDX-License-Identifier: MIT
// A refresh may come late by up to 15 % of its interval, and the next one in time. Of the last two
// times between questions the shorter one is then at most 7.5 % longer than the interval, and the
// next one at most 15 % shorter: a reading at three quarters is there even then.
#include "platform/linux/gpu/ReadingRhythm.h"

#include <algorithm>
#include <utility>

namespace zephrine {

void ReadingRhythm::noteQuestion(Time now) {
    // Two questions in a row, as when cards are looked for and then read, are no interval.
    constexpr std::chrono::milliseconds kShortest{100};
    if (lastQuestion_) {
        sinceQuestionBefore_ = now - *lastQuestion_;
        if (sinceQuestionBefore_ >= kShortest) {
            before_ = std::exchange(last_, sinceQuestionBefore_);
        }
    }
    lastQuestion_ = now;
}

bool ReadingRhythm::isFresh(Time readAt) const {
    return lastQuestion_ && *lastQuestion_ - readAt <= interval().value_or(sinceQuestionBefore_);
}

std::optional<ReadingRhythm::Time> ReadingRhythm::nextReading(Time now) const {
    // Questions may become rarer, down to a tenth: until then it is read as often as before.
    constexpr int kUnanswered = 12;
    const auto every = interval();
    if (!every || now - *lastQuestion_ > kUnanswered * *every) {
        return std::nullopt;
    }
    Time next = *lastQuestion_ + *every * 3 / 4;
    while (next < now + *every / 2) {
        next += *every;
    }
    return next;
}

std::optional<ReadingRhythm::Duration> ReadingRhythm::interval() const {
    return last_ && before_ ? std::min(*last_, *before_) : last_;
}

}  // namespace zephrine
