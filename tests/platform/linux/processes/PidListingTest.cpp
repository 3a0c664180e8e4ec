// SPDX-License-Identifier: MIT
#include "platform/linux/processes/PidListing.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "platform/linux/FakeTree.h"
#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {
namespace {

using ::testing::UnorderedElementsAre;

TEST(NewestPid, IsTheFifthFieldOfLoadavg) {
    EXPECT_EQ(newestPid("0.39 0.14 0.05 1/88 6144\n"), 6144);
}

TEST(NewestPid, IsAbsentInATruncatedOrAbsurdText) {
    for (const char* const text :
         {"", "\n", "0.39 0.14 0.05 1/88\n", "0.39 0.14 0.05 1/88 61", "0.39 0.14 0.05 1/88 -1\n",
          "0.39 0.14 0.05 1/88 0\n", "0.39 0.14 0.05 1/88 4194305\n"}) {
        EXPECT_FALSE(newestPid(text)) << text;
    }
}

TEST(PidFromName, TakesNumbersOnly) {
    EXPECT_EQ(pidFromName("1"), 1);
    EXPECT_EQ(pidFromName("4194304"), 4194304);
    for (const char* const name : {"", "self", "0", "01", "-1", "+1", "1a", " 1", "4294967297"}) {
        EXPECT_FALSE(pidFromName(name)) << name;
    }
}

TEST(ListPids, FindsEachFolderThatIsCalledAfterAPid) {
    const testing::FakeTree tree;
    for (const char* const name : {"1/stat", "12/stat", "4000000/stat", "self/stat", "bus/x"}) {
        tree.write(name, "");
    }
    const FileDescriptor folder(::open(tree.root().c_str(), O_RDONLY | O_DIRECTORY));
    for (int round = 0; round < 2; ++round) {
        std::vector<std::int32_t> pids;
        EXPECT_TRUE(listPids(folder.get(), [&](std::int32_t pid) { pids.push_back(pid); }));
        EXPECT_THAT(pids, UnorderedElementsAre(1, 12, 4000000));
    }
}

TEST(ListPids, FailsOnSomethingThatIsNoFolder) {
    EXPECT_FALSE(listPids(-1, [](std::int32_t) { FAIL(); }));
}

TEST(ListingGate, ListsAllAtFirstAndAtEverySixteenthCapture) {
    ListingGate gate;
    for (int capture = 0; capture < 40; ++capture) {
        EXPECT_EQ(gate.next(100).listAll, capture % 16 == 0) << capture;
    }
}

TEST(ListingGate, ProbesTheNewPidsAndOnceMoreThoseOfTheCaptureBefore) {
    ListingGate gate;
    gate.next(100);
    EXPECT_EQ(gate.next(110), (ListingPlan{.after = 100, .last = 110}));
    EXPECT_EQ(gate.next(115), (ListingPlan{.after = 100, .last = 115}));
    EXPECT_EQ(gate.next(115), (ListingPlan{.after = 110, .last = 115}));
    EXPECT_EQ(gate.next(115), (ListingPlan{.after = 115, .last = 115}));
}

TEST(ListingGate, ListsAllAndTrustsNothingAfterTheNumbersBeganAnew) {
    ListingGate gate;
    gate.next(32000);
    EXPECT_EQ(gate.next(310), (ListingPlan{.listAll = true, .distrustKept = true}));
    EXPECT_EQ(gate.next(312), (ListingPlan{.after = 310, .last = 312}));
}

TEST(ListingGate, ListsAllAndTrustsNothingAfterAJump) {
    ListingGate gate;
    gate.next(100);
    EXPECT_EQ(gate.next(2100), (ListingPlan{.after = 100, .last = 2100}));
    EXPECT_EQ(gate.next(4101), (ListingPlan{.listAll = true, .distrustKept = true}));
}

TEST(ListingGate, ListsAllAndTrustsNothingWhileTheNewestPidIsUnknown) {
    ListingGate gate;
    gate.next(100);
    EXPECT_EQ(gate.next(std::nullopt), (ListingPlan{.listAll = true, .distrustKept = true}));
    EXPECT_EQ(gate.next(100), (ListingPlan{.listAll = true, .distrustKept = true}));
    EXPECT_EQ(gate.next(101), (ListingPlan{.after = 100, .last = 101}));
}

TEST(ListingGate, DoesNotDistrustWhatIsKeptOnlyBecauseAListingIsDue) {
    ListingGate gate;
    for (int capture = 0; capture < 16; ++capture) {
        gate.next(100);
    }
    EXPECT_EQ(gate.next(100), (ListingPlan{.listAll = true, .distrustKept = false}));
}

}  // namespace
}  // namespace zephrine
