// SPDX-License-Identifier: MIT
// When to read a figure so that it is fresh at the moment when somebody asks for it, who asks again
// and again at intervals that only the questions themselves tell. A reading that was begun with the
// question itself would be a whole interval old by the time it is used.
#pragma once

#include <chrono>
#include <optional>

namespace zephrine {

class ReadingRhythm {
public:
    using Time = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::steady_clock::duration;

    void noteQuestion(Time now);

    /// Whether a figure that was read at `readAt` holds at the last question: it is not older than
    /// an interval.
    [[nodiscard]] bool isFresh(Time readAt) const;

    /// When to read next; absent when no question is to be expected.
    [[nodiscard]] std::optional<Time> nextReading(Time now) const;

private:
    [[nodiscard]] std::optional<Duration> interval() const;

    std::optional<Time> lastQuestion_;
    Duration sinceQuestionBefore_{};  ///< from the question before the last one to that
    std::optional<Duration> last_;    ///< the last two that were long enough to be intervals
    std::optional<Duration> before_;
};

}  // namespace zephrine
