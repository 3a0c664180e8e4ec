// SPDX-License-Identifier: MIT
#include "platform/linux/processes/ProcessFacts.h"

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

TEST(ProcessFacts, KnowNoParentOfTheFirstProcess) {
    EXPECT_EQ(parentOf(1), std::nullopt);
}

}  // namespace
}  // namespace zephrine
