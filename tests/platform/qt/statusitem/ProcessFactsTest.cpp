// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/ProcessFacts.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>

namespace zephrine {
namespace {

TEST(ProcessFacts, NameAProcessAsTheKernelDoes) {
    std::array<char, 16> name{};
    ASSERT_EQ(prctl(PR_GET_NAME, name.data()), 0);
    EXPECT_EQ(commandOf(getpid()), name.data());
}

TEST(ProcessFacts, KnowTheParent) {
    EXPECT_EQ(parentOf(getpid()), getppid());
}

TEST(ProcessFacts, KnowNothingOfAProcessThatDoesNotExist) {
    EXPECT_EQ(commandOf(-1), "");
    EXPECT_EQ(parentOf(-1), std::nullopt);
}

TEST(ProcessFacts, FindTheParentBehindAnyCommandName) {
    EXPECT_EQ(parentInStat("42 (panel) S 41 42 42 0"), 41);
    EXPECT_EQ(parentInStat("42 (a) S 7 (b) S 41 42"), 41);
    EXPECT_EQ(parentInStat("42 (a\nb) R 41 42"), 41);
}

TEST(ProcessFacts, FindNoParentInATextThatHasNone) {
    for (const char* text :
         {"", "42", "42 (panel)", "42 (panel) S", "42 (panel) S x 42", "42 (panel) S -3 42",
          "42 (panel) S 99999999999 42", "1 (init) S 0 1"}) {
        EXPECT_EQ(parentInStat(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace zephrine
