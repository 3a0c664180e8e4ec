// SPDX-License-Identifier: MIT
// Preferences when things go wrong: writers that are killed, disks that are full, folders that may
// not be written. What is on the disk is the old file or the new one, always whole.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <string>

#include "platform/linux/FakeTree.h"
#include "platform/linux/base/FileReplacement.h"
#include "platform/linux/preferences/JSONPreferenceStore.h"
#include "platform/linux/preferences/PreferenceDocument.h"

namespace zephrine {
namespace {

constexpr int kSkipped = 77;

/// Runs `body` in a child, so that privileges, mounts and kills stay there; its exit status.
int inChild(const std::function<int()>& body) {
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::_exit(body());
    }
    int status = -1;
    ::waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string textOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool dropPrivileges() {
    constexpr uid_t kNobody = 65534;
    return ::geteuid() != 0 || ::setresuid(kNobody, kNobody, kNobody) == 0;
}

/// Counts up under two keys, the first one ahead: they differ by one at most.
[[noreturn]] void writeForEver(const std::string& path) {
    JSONPreferenceStore store(path);
    for (;;) {
        const auto next = static_cast<std::int64_t>(store.doubleForKey("second")) + 1;
        store.setInteger(next, "first");
        store.setInteger(next, "second");
    }
}

/// Microseconds in which a writer gets far enough to be killed anywhere: some disks are slow.
useconds_t timeOfSomeWrites() {
    const testing::FakeTree tree;
    JSONPreferenceStore store(tree.path("zephrine/preferences.json"));
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 8; ++i) {
        store.setInteger(i, "first");
    }
    const auto passed = std::chrono::steady_clock::now() - start;
    return static_cast<useconds_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(passed).count());
}

TEST(PreferenceFaults, LeaveAWholeFileWhereverAWriterIsKilled) {
    const testing::FakeTree tree;
    const std::string path = tree.path("zephrine/preferences.json");
    std::mt19937 random(20'260'721);
    std::uniform_int_distribution<useconds_t> moments(0, std::max(20'000U, timeOfSomeWrites()));
    double last = 0;
    for (int kill = 0; kill < 200; ++kill) {
        const pid_t writer = ::fork();
        if (writer == 0) {
            writeForEver(path);
        }
        ASSERT_GT(writer, 0);
        ::usleep(moments(random));
        ::kill(writer, SIGKILL);
        ::waitpid(writer, nullptr, 0);
        if (!std::filesystem::exists(path)) {
            continue;
        }
        const auto document = parsePreferences(textOf(path));
        ASSERT_TRUE(document) << textOf(path);
        JSONPreferenceStore store(path);
        const double first = store.doubleForKey("first");
        EXPECT_GE(first, last);
        EXPECT_TRUE(store.doubleForKey("second") == first ||
                    store.doubleForKey("second") == first - 1);
        last = first;
    }
    EXPECT_GT(last, 0);
    JSONPreferenceStore(path).setInteger(1, "last");
    const std::filesystem::directory_iterator folder(tree.path("zephrine"));
    EXPECT_EQ(std::distance(begin(folder), end(folder)), 1) << "a leftover was not cleared away";
}

TEST(PreferenceFaults, OnAFullDiskKeepTheOldFileAndTheNewValueInMemory) {
    const testing::FakeTree tree;
    const int result = inChild([&tree] {
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("none", tree.root().c_str(), "tmpfs", 0, "size=64k,mode=700") != 0) {
            return kSkipped;
        }
        const std::string path = tree.path("preferences.json");
        JSONPreferenceStore store(path);
        store.setInteger(9, "fontSize");
        const std::string old = textOf(path);
        std::ofstream(tree.path("filler")) << std::string(std::size_t{1} << 20U, 'x');
        store.setInteger(10, "fontSize");
        const bool kept = textOf(path) == old && store.doubleForKey("fontSize") == 10 &&
                          !std::filesystem::exists(path + ".new");
        std::filesystem::remove(tree.path("filler"));
        store.setBool(true, "ramInGB");
        const JSONPreferenceStore next(path);
        return kept && next.doubleForKey("fontSize") == 10 && next.boolForKey("ramInGB") ? 0 : 1;
    });
    if (result == kSkipped) {
        GTEST_SKIP() << "mounting a tmpfs takes CAP_SYS_ADMIN";
    }
    EXPECT_EQ(result, 0);
}

TEST(PreferenceFaults, InAReadOnlyFolderKeepTheNewValueInMemory) {
    const testing::FakeTree tree;
    const std::string path = tree.path("zephrine/preferences.json");
    tree.write("zephrine/preferences.json", "{\"fontSize\": 8.0}");
    ::chmod(tree.root().c_str(), 0755);
    ::chmod(tree.path("zephrine").c_str(), 0555);
    EXPECT_EQ(inChild([&path] {
                  if (!dropPrivileges()) {
                      return 2;
                  }
                  JSONPreferenceStore store(path);
                  const bool read = store.doubleForKey("fontSize") == 8;
                  store.setInteger(10, "fontSize");
                  return read && store.doubleForKey("fontSize") == 10 ? 0 : 1;
              }),
              0);
    EXPECT_EQ(textOf(path), "{\"fontSize\": 8.0}");
    ::chmod(tree.path("zephrine").c_str(), 0755);
}

TEST(PreferenceFaults, MoveAnUnreadableFileAside) {
    const testing::FakeTree tree;
    const std::string path = tree.path("zephrine/preferences.json");
    tree.write("zephrine/preferences.json", "{\"fontSize\": 8.0}");
    ::chmod(path.c_str(), 0);
    ::chmod(tree.root().c_str(), 0755);
    ::chmod(tree.path("zephrine").c_str(), 0777);
    EXPECT_EQ(inChild([&path] {
                  if (!dropPrivileges()) {
                      return 2;
                  }
                  JSONPreferenceStore store(path);
                  const bool empty = store.doubleForKey("fontSize") == 0;
                  store.setInteger(10, "fontSize");
                  return empty && store.doubleForKey("fontSize") == 10 ? 0 : 1;
              }),
              0);
    ::chmod((path + ".corrupt").c_str(), 0600);
    EXPECT_EQ(textOf(path + ".corrupt"), "{\"fontSize\": 8.0}");
}

TEST(FileReplacement, LeavesTheWorkOfAnotherWriterAlone) {
    const testing::FakeTree tree;
    tree.write("file", "old");
    tree.write("file.new", "half");
    const int other = ::open(tree.path("file.new").c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    EXPECT_TRUE(replaceFile(tree.path("file"), "mine")) << "an error";
    EXPECT_EQ(textOf(tree.path("file")), "old");
    EXPECT_EQ(textOf(tree.path("file.new")), "half");
    ::close(other);
    EXPECT_EQ(replaceFile(tree.path("file"), "mine"), std::error_code());
    EXPECT_EQ(textOf(tree.path("file")), "mine");
}

TEST(FileReplacement, DoesNotWriteThroughALinkThatStandsUnderTheTemporaryName) {
    const testing::FakeTree tree;
    tree.write("victim", "precious");
    tree.link("file.new", tree.path("victim"));
    EXPECT_TRUE(replaceFile(tree.path("file"), "mine")) << "an error";
    EXPECT_EQ(textOf(tree.path("victim")), "precious");
}

TEST(FileReplacement, TakesPathsWithoutAFolder) {
    const testing::FakeTree tree;
    EXPECT_EQ(inChild([&tree] {
                  return ::chdir(tree.root().c_str()) == 0 && !replaceFile("file", "mine") &&
                                 textOf("file") == "mine"
                             ? 0
                             : 1;
              }),
              0);
}

}  // namespace
}  // namespace zephrine
