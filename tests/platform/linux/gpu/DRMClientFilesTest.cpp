// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/DRMClientFiles.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <set>

#include "platform/linux/OpenWatch.h"
#include "platform/linux/gpu/FakeClients.h"

namespace zephrine {
namespace {

using testing::FakeClients;
using testing::FakeTree;
using testing::OpenWatch;

class DRMClientFilesTest : public ::testing::Test {
protected:
    static constexpr const char* kNode = "/dev/dri/renderD128";

    std::multiset<std::string> pass() {
        std::multiset<std::string> texts;
        files.forEach([&texts](std::string_view text) { texts.emplace(text); });
        return texts;
    }
    using Texts = std::multiset<std::string>;

    FakeClients clients;
    DRMClientFiles files{clients.tree.root(), {"/dev/dri/card0", kNode}};
};

TEST_F(DRMClientFilesTest, FindsEveryDescriptorThatLeadsToTheCard) {
    clients.open(7, 4, kNode, "a");
    clients.open(7, 9, "/dev/dri/card0", "b");
    clients.open(8, 0, kNode, "c");
    clients.open(8, 3, "/home/user/notes", "no");
    clients.open(8, 4, "/dev/dri/renderD129", "no");
    clients.open(8, 5, "/dev/dri/renderD1280", "no");
    clients.open(8, 6, "socket:[12345]", "no");
    clients.open(8, 7, std::string(300, 'x'), "no");
    EXPECT_EQ(pass(), (Texts{"a", "b", "c"}));
}

TEST_F(DRMClientFilesTest, OpensTheFdinfoOfNoOtherFile) {
    clients.open(7, 4, kNode, "a");
    clients.open(7, 5, "/dev/dri/renderD129", "asleep");
    OpenWatch watch(clients.tree.path("7/fdinfo"));
    for (int passes = 0; passes < 40; ++passes) {
        pass();
    }
    EXPECT_EQ(watch.touched(), std::set<std::string>{"4"});
}

TEST_F(DRMClientFilesTest, OpensNoFdinfoThatLeadsToAnotherFileByNow) {
    clients.open(7, 4, kNode, "a");
    EXPECT_EQ(pass(), Texts{"a"});
    clients.close(7, 4);
    clients.open(7, 4, "/dev/dri/renderD129", "asleep");
    OpenWatch watch(clients.tree.path("7/fdinfo"));
    for (int passes = 0; passes < 40; ++passes) {
        EXPECT_EQ(pass(), Texts{});
    }
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
}

TEST_F(DRMClientFilesTest, FindsTheDescriptorsOfNewProcessesAtOnce) {
    EXPECT_EQ(pass(), Texts{});
    clients.open(1234, 4, kNode, "a");
    EXPECT_EQ(pass(), Texts{"a"});
}

TEST_F(DRMClientFilesTest, FindsNewDescriptorsOfOldProcessesWithinSixteenPasses) {
    clients.open(7, 3, "/dev/null", "no");
    pass();
    clients.open(7, 4, kNode, "a");
    Texts found;
    for (int passes = 0; passes < 16; ++passes) {
        found = pass();
    }
    EXPECT_EQ(found, Texts{"a"});
}

TEST_F(DRMClientFilesTest, LooksAtASixteenthOfTheOldProcessesInEachPass) {
    for (int pid = 100; pid < 164; ++pid) {
        clients.open(pid, 3, "/dev/null", "no");
    }
    pass();
    for (int pid = 100; pid < 164; ++pid) {
        clients.open(pid, 4, kNode, "a");
    }
    for (std::size_t passes = 1; passes <= 16; ++passes) {
        EXPECT_EQ(pass().size(), 4 * passes);
    }
}

TEST_F(DRMClientFilesTest, LosesDescriptorsThatAreClosedAndProcessesThatEnd) {
    clients.open(7, 4, kNode, "a");
    clients.open(7, 5, kNode, "b");
    clients.open(8, 4, kNode, "c");
    EXPECT_EQ(pass(), (Texts{"a", "b", "c"}));
    clients.close(7, 4);
    clients.tree.remove("8");
    EXPECT_EQ(pass(), Texts{"b"});
}

TEST_F(DRMClientFilesTest, KeepsOneProcessFromFillingTheList) {
    for (int number = 0; number < 200; ++number) {
        clients.open(7, number, kNode, "a");
    }
    clients.open(8, 4, kNode, "b");
    const auto texts = pass();
    EXPECT_EQ(texts.count("a"), 64U);
    EXPECT_EQ(texts.count("b"), 1U);
}

TEST(DRMClientFiles, FindNothingWhereThereIsNoProc) {
    DRMClientFiles files("/nowhere", {"/dev/dri/card0"});
    files.forEach([](std::string_view text) { FAIL() << text; });
}

TEST(DRMClientFiles, FindADescriptorAmongTheProcessesOfThisMachine) {
    const FakeTree tree;
    tree.write("device", "");
    const FileDescriptor opened(::open(tree.path("device").c_str(), O_RDONLY | O_CLOEXEC));
    DRMClientFiles files("/proc", {tree.path("device")});
    int found = 0;
    files.forEach([&found](std::string_view fdinfo) {
        EXPECT_NE(fdinfo.find("flags:"), std::string_view::npos);
        ++found;
    });
    EXPECT_EQ(found, 1);
}

}  // namespace
}  // namespace zephrine
