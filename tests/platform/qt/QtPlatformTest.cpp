// SPDX-License-Identifier: MIT
#include "platform/qt/QtPlatform.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

TEST(QtPlatform, LeavesAProcessTableToWhoeverStillUsesIt) {
    QtPlatform platform({"zephrine"});
    const ProcessTable* const first = platform.processTable().get();
    EXPECT_EQ(platform.processTable().get(), first);
    const auto stuck = platform.processTable();
    const auto next = platform.processTable();
    EXPECT_NE(next, stuck);
}

TEST(QtPlatform, LetsAProcessTableOutliveIt) {
    std::shared_ptr<ProcessTable> table;
    {
        QtPlatform platform({"zephrine"});
        table = platform.processTable();
    }
    EXPECT_GT(table->proc_listallpids({}), 0);
}

}  // namespace
}  // namespace zephrine
