// SPDX-License-Identifier: MIT
#include "platform/qt/windows/ClickGuard.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

using std::chrono::milliseconds;

struct ClickGuardTest : testing::Test {
    ClickGuard::TimePoint now{std::chrono::hours(5)};
    ClickGuard guard{[this] { return now; }};
};

TEST_F(ClickGuardTest, LetsClicksThroughWhenNothingHasHidden) {
    EXPECT_FALSE(guard.swallowsClick());
}

TEST_F(ClickGuardTest, SwallowsTheClickOfThePressThatHidThePopover) {
    guard.noteAutomaticHide();
    EXPECT_TRUE(guard.swallowsClick());
    now += milliseconds(249);
    EXPECT_TRUE(guard.swallowsClick());
}

TEST_F(ClickGuardTest, LetsTheNextClickThrough) {
    guard.noteAutomaticHide();
    now += milliseconds(250);
    EXPECT_FALSE(guard.swallowsClick());
}

TEST_F(ClickGuardTest, CountsFromTheLatestHide) {
    guard.noteAutomaticHide();
    now += milliseconds(200);
    guard.noteAutomaticHide();
    now += milliseconds(200);
    EXPECT_TRUE(guard.swallowsClick());
}

}  // namespace
}  // namespace zephrine
