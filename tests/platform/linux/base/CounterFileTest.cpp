// SPDX-License-Identifier: MIT
#include "platform/linux/base/CounterFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::FakeTree;

std::size_t openDescriptors() {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator("/proc/self/fd")) {
        ++count;
    }
    return count;
}

class CounterFileTest : public ::testing::Test {
protected:
    FakeTree tree;
    std::array<char, 16> buffer{};
};

TEST_F(CounterFileTest, ReadsTheTextOfTheMomentThroughOneDescriptor) {
    tree.write("counter", "1\n");
    CounterFile file(tree.path("counter"));
    EXPECT_EQ(file.read(buffer), "1\n");
    const std::size_t descriptors = openDescriptors();
    tree.write("counter", "22\n");
    EXPECT_EQ(file.read(buffer), "22\n");
    EXPECT_EQ(openDescriptors(), descriptors);
}

TEST_F(CounterFileTest, GivesAsMuchAsFits) {
    tree.write("counter", "0123456789abcdefghij");
    EXPECT_EQ(CounterFile(tree.path("counter")).read(buffer), "0123456789abcdef");
}

TEST_F(CounterFileTest, IsAbsentWhileTheFileIsMissingAndComesBackWithIt) {
    CounterFile file(tree.path("counter"));
    EXPECT_EQ(file.read(buffer), std::nullopt);
    EXPECT_EQ(errno, ENOENT);
    tree.write("counter", "7\n");
    EXPECT_EQ(file.read(buffer), "7\n");
}

TEST_F(CounterFileTest, NeitherWaitsForAFifoNorKeepsItOpen) {
    ASSERT_EQ(::mkfifo(tree.path("fifo").c_str(), 0600), 0);
    CounterFile file(tree.path("fifo"));
    const std::size_t descriptors = openDescriptors();
    EXPECT_EQ(file.read(buffer), std::nullopt);
    EXPECT_EQ(openDescriptors(), descriptors);
}

TEST_F(CounterFileTest, IsAbsentForAFolder) {
    EXPECT_EQ(CounterFile(tree.root()).read(buffer), std::nullopt);
}

TEST_F(CounterFileTest, OpensAnewWhenTheKeptDescriptorFails) {
    // A process's own file fails with ESRCH once the process has ended: here a link is turned
    // to another file at the same time.
    const pid_t child = ::fork();
    if (child == 0) {
        ::pause();
        ::_exit(0);
    }
    ASSERT_GT(child, 0);
    tree.link("counter", "/proc/" + std::to_string(child) + "/statm");
    CounterFile file(tree.path("counter"));
    EXPECT_NE(file.read(buffer), std::nullopt);
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    tree.remove("counter");
    tree.write("counter", "new\n");
    EXPECT_EQ(file.read(buffer), "new\n");
}

TEST_F(CounterFileTest, ClosesItsDescriptorAtTheEndAndNotBeforeItWasMovedAway) {
    tree.write("counter", "1\n");
    const std::size_t descriptors = openDescriptors();
    {
        CounterFile first(tree.path("counter"));
        EXPECT_EQ(first.read(buffer), "1\n");
        CounterFile second(std::move(first));
        EXPECT_EQ(openDescriptors(), descriptors + 1);
        EXPECT_EQ(second.read(buffer), "1\n");
        CounterFile third(tree.path("missing"));
        third = std::move(second);
        EXPECT_EQ(third.read(buffer), "1\n");
        EXPECT_EQ(openDescriptors(), descriptors + 1);
    }
    EXPECT_EQ(openDescriptors(), descriptors);
}

}  // namespace
}  // namespace zephrine
