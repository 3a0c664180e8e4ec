// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/ReadingRhythm.h"

#include <gtest/gtest.h>

#include <vector>

namespace zephrine {
namespace {

using std::chrono::milliseconds;

/// Plays the thread that reads, and takes no time for it. All times in milliseconds.
struct ReadingRhythmTest : ::testing::Test {
    using Time = ReadingRhythm::Time;

    /// Reads whenever it is time to, up to the question at `time`. The age of the figure then;
    /// absent when it does not hold.
    std::optional<int> ask(int time) {
        readings = 0;
        while (const auto next = rhythm.nextReading(now)) {
            if (*next > Time(milliseconds(time))) {
                break;
            }
            read(*next);
        }
        now = Time(milliseconds(time));
        rhythm.noteQuestion(now);
        if (!readAt || !rhythm.isFresh(*readAt)) {
            read(now);  // for the next question
            return std::nullopt;
        }
        return static_cast<int>(std::chrono::duration_cast<milliseconds>(now - *readAt).count());
    }
    void read(Time time) {
        now = time;
        readAt = time;
        ++readings;
    }
    /// Asks at intervals of these lengths, and gives the ages.
    std::vector<std::optional<int>> askEvery(const std::vector<int>& intervals) {
        std::vector<std::optional<int>> ages;
        for (const int interval : intervals) {
            ages.push_back(ask(last += interval));
        }
        return ages;
    }

    ReadingRhythm rhythm;
    Time now;
    std::optional<Time> readAt;
    int readings = 0;  ///< for the last question
    int last = 0;      ///< question
};

TEST_F(ReadingRhythmTest, ExpectsNothingBeforeTwoQuestionsMakeAnInterval) {
    EXPECT_FALSE(rhythm.nextReading(now));
    EXPECT_EQ(ask(0), std::nullopt);
    EXPECT_FALSE(rhythm.nextReading(now));
    EXPECT_EQ(ask(1), 1) << "two in a row are no interval";
    EXPECT_FALSE(rhythm.nextReading(now));
    ask(1001);
    EXPECT_EQ(rhythm.nextReading(now), Time(milliseconds(1751)));
}

TEST_F(ReadingRhythmTest, ReadsOnceInEachIntervalShortlyBeforeTheQuestion) {
    for (const int interval : {500, 1000, 2000, 5000}) {
        askEvery({interval, interval, interval});
        for (int question = 0; question < 10; ++question) {
            EXPECT_EQ(askEvery({interval}).front(), interval / 4);
            EXPECT_EQ(readings, 1);
        }
    }
}

TEST_F(ReadingRhythmTest, IsInTimeForQuestionsThatComeEarlyOrLate) {
    for (const int interval : {500, 1000, 2000, 5000}) {
        const int late = interval * 15 / 100;
        askEvery({interval, interval, interval});
        // Points of a grid, each up to its tolerance behind.
        for (const auto& age :
             askEvery({interval - late, interval + late, interval - late, interval,
                       interval + late / 2, interval - late / 2, interval + late / 2,
                       interval + late / 2, interval - late, interval})) {
            ASSERT_TRUE(age);
            EXPECT_LE(*age, interval * 6 / 10);
        }
    }
}

TEST_F(ReadingRhythmTest, HasNoFigureThatIsOlderThanAnInterval) {
    askEvery({1000, 1000});
    rhythm.noteQuestion(now + milliseconds(1000));
    EXPECT_TRUE(rhythm.isFresh(now));
    EXPECT_FALSE(rhythm.isFresh(now - milliseconds(1)));
}

TEST_F(ReadingRhythmTest, HasNoFigureOfTheTimeBeforeWhenNobodyReadMeanwhile) {
    askEvery({1000, 1000});
    rhythm.noteQuestion(now + milliseconds(3000));
    EXPECT_FALSE(rhythm.isFresh(now + milliseconds(1999)));
    EXPECT_TRUE(rhythm.isFresh(now + milliseconds(2000)));
}

TEST_F(ReadingRhythmTest, KeepsUpWithASlowerInterval) {
    askEvery({500, 500, 500});
    for (const auto& age : askEvery({5000, 5000, 5000})) {
        ASSERT_TRUE(age);
        EXPECT_LE(*age, 5000 / 4);
    }
    EXPECT_EQ(readings, 1);
}

TEST_F(ReadingRhythmTest, KeepsUpWithAFasterIntervalFromItsThirdQuestionOn) {
    askEvery({5000, 5000, 5000});
    for (const int sinceTheLastSlowOne : {3500, 4400, 900}) {
        askEvery({sinceTheLastSlowOne, 500});
        for (const auto& age : askEvery({500, 500, 500})) {
            ASSERT_TRUE(age) << sinceTheLastSlowOne;
            EXPECT_LE(*age, 500);
        }
        askEvery({5000, 5000});
    }
}

TEST_F(ReadingRhythmTest, GivesUpWhenNobodyAsksAnyMore) {
    askEvery({1000, 1000});
    ask(60'000);
    EXPECT_LE(readings, 14);
    EXPECT_FALSE(rhythm.nextReading(Time(milliseconds(200'000))));
}

}  // namespace
}  // namespace zephrine
