// SPDX-License-Identifier: MIT
#include "platform/linux/processes/ProcPidStat.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::captured;

struct Named {
    const char* file;
    std::string comm;
    std::uint64_t startTime;
};

class ProcPidStatOf : public ::testing::TestWithParam<Named> {};

TEST_P(ProcPidStatOf, AnyNameIsReadWholeAndDoesNotDisplaceTheFields) {
    const std::string text = captured(std::string("process/") + GetParam().file);
    const auto stat = parseProcPidStat(text);
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->comm, GetParam().comm);
    EXPECT_EQ(stat->startTime, GetParam().startTime);
}

INSTANTIATE_TEST_SUITE_P(HostileNames, ProcPidStatOf,
                         ::testing::Values(Named{"sd-pam.stat", "(sd-pam)", 191906},
                                           Named{"fake-fields.stat", ") R 1 (2 3 4", 191926},
                                           Named{"newline.stat", "a\nRssAnon:\t1 kB", 191926},
                                           Named{"escape.stat", "\x1b[2J\x1b]0;x\a", 191926},
                                           Named{"markup.stat", "<b>&amp;</b>", 191927},
                                           Named{"invalid-utf8.stat", "\xff\xfe\xc3(\xed\xa0",
                                                 191928},
                                           Named{"empty.stat", "", 191928},
                                           Named{"cut-off.stat", "a-program-with-", 191928},
                                           Named{"kthread.stat", "kthreadd", 10}));

TEST(ProcPidStat, TellsTheParent) {
    for (const auto& [file, parent] :
         {std::pair("zombie.stat", 354U), std::pair("fake-fields.stat", 354U),
          std::pair("kthread.stat", 0U)}) {
        const std::string text = captured(std::string("process/") + file);
        const auto stat = parseProcPidStat(text);
        ASSERT_TRUE(stat) << file;
        EXPECT_EQ(stat->parent, parent) << file;
    }
}

TEST(ProcPidStat, IsAbsentWhereverTheLineIsCutOffBeforeTheStartTimeEnds) {
    const std::string text = captured("process/sd-pam.stat");
    const std::size_t end = text.find("191906") + 6;
    for (std::size_t length = 0; length <= end; ++length) {
        EXPECT_FALSE(parseProcPidStat(std::string_view(text).substr(0, length))) << length;
    }
    EXPECT_TRUE(parseProcPidStat(std::string_view(text).substr(0, end + 1)));
}

TEST(ProcPidStat, IsAbsentForOtherTexts) {
    for (const char* const text :
         {"", "()", ")(", "1 (a) SS 1 1 1", "1 (a) S -1",
          "1 (a) S 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 -5 1",
          "1 (a) S 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 99999999999999999999 1"}) {
        EXPECT_FALSE(parseProcPidStat(text)) << text;
    }
}

}  // namespace
}  // namespace zephrine
