// SPDX-License-Identifier: MIT
// The table against the running kernel: real processes that start, work, end and follow each other
// under one pid.
#include <dirent.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <set>
#include <thread>
#include <vector>

#include "platform/linux/processes/LinuxProcessTable.h"
#include "platform/linux/processes/PidListing.h"

namespace zephrine {
namespace {

using ::testing::Contains;
using ::testing::Not;

std::set<std::int32_t> capture(LinuxProcessTable& table) {
    const int count = table.proc_listallpids({});
    std::vector<std::int32_t> pids(static_cast<std::size_t>(std::max(0, count)) + 128);
    pids.resize(static_cast<std::size_t>(std::max(0, table.proc_listallpids(pids))));
    std::erase_if(pids, [&table](std::int32_t pid) { return !table.proc_pid_rusage(pid); });
    return {pids.begin(), pids.end()};
}

std::set<std::int32_t> pidsOfProc() {
    std::set<std::int32_t> pids;
    DIR* const folder = ::opendir("/proc");
    while (const dirent* const entry = ::readdir(folder)) {
        if (const auto pid = pidFromName(entry->d_name)) {
            pids.insert(*pid);
        }
    }
    ::closedir(folder);
    return pids;
}

/// A child of this test that sleeps or works until it is ended.
class Child {
public:
    enum class Life { sleeps, works };

    explicit Child(Life life, std::int32_t pid = 0) : pid_(begin(pid)) {
        if (pid_ == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            while (life == Life::works || ::pause() != 0) {
                ::getppid();  // work, of a kind that a compiler keeps
            }
        }
    }
    ~Child() { end(); }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    [[nodiscard]] std::int32_t pid() const { return pid_; }
    void kill() const {
        if (pid_ > 0) {  // −1 would mean every process there is
            ::kill(pid_, SIGKILL);
        }
    }
    void end() {
        if (pid_ > 0) {
            kill();
            ::waitpid(pid_, nullptr, 0);
            pid_ = -1;
        }
    }

private:
    /// As fork(2), with a pid of the caller's choice unless that is 0; negative on failure.
    static std::int32_t begin(std::int32_t wanted) {
        clone_args arguments{};
        arguments.exit_signal = SIGCHLD;
        if (wanted != 0) {
            arguments.set_tid = reinterpret_cast<std::uintptr_t>(&wanted);
            arguments.set_tid_size = 1;
        }
        return static_cast<std::int32_t>(::syscall(SYS_clone3, &arguments, sizeof arguments));
    }

    std::int32_t pid_;
};

TEST(LiveProcesses, AreAllFoundByEveryCapture) {
    LinuxProcessTable table;
    for (int round = 0; round < 20; ++round) {
        const Child child(Child::Life::sleeps);
        ASSERT_GT(child.pid(), 0);
        const auto before = pidsOfProc();
        const auto found = capture(table);
        const auto after = pidsOfProc();
        for (const std::int32_t pid : before) {
            EXPECT_TRUE(found.contains(pid) || !after.contains(pid)) << pid << " was not found";
        }
        EXPECT_THAT(found, Contains(table.getpid()));
        EXPECT_THAT(found, Contains(child.pid()));
    }
}

TEST(LiveProcesses, AreFollowedAsTheyStartAndEnd) {
    LinuxProcessTable table;
    std::vector<std::int32_t> ended;
    for (int round = 0; round < 100; ++round) {
        Child child(Child::Life::sleeps);
        ASSERT_GT(child.pid(), 0);
        EXPECT_THAT(capture(table), Contains(child.pid())) << round;
        ended.push_back(child.pid());
        child.end();
        const auto found = capture(table);
        EXPECT_FALSE(std::any_of(ended.begin(), ended.end(),
                                 [&found](auto pid) { return found.contains(pid); }));
    }
}

TEST(LiveProcesses, CountTheTimeThatTheirOwnClockShows) {
    LinuxProcessTable table;
    const Child child(Child::Life::works);
    const Child sleeper(Child::Life::sleeps);
    ASSERT_GT(child.pid(), 0);
    clockid_t clock{};
    ASSERT_EQ(::clock_getcpuclockid(child.pid(), &clock), 0);
    const auto now = [clock] {
        timespec time{};
        ::clock_gettime(clock, &time);
        return static_cast<std::uint64_t>(time.tv_sec) * 1'000'000'000U +
               static_cast<std::uint64_t>(time.tv_nsec);
    };
    std::uint64_t last = 0;
    for (int round = 0; round < 20; ++round) {
        capture(table);
        const std::uint64_t before = now();
        const auto usage = table.proc_pid_rusage(child.pid());
        const std::uint64_t after = now();
        ASSERT_TRUE(usage);
        EXPECT_LE(before, usage->ri_user_time + usage->ri_system_time);
        EXPECT_GE(after, usage->ri_user_time + usage->ri_system_time);
        last = usage->ri_user_time;
        ::usleep(10'000);
    }
    EXPECT_GT(last, 0);
    EXPECT_EQ(table.proc_pid_rusage(sleeper.pid())->ri_user_time,
              table.proc_pid_rusage(sleeper.pid())->ri_user_time);
}

TEST(LiveProcesses, KeepTheirStartAndDifferFromASuccessorUnderTheSamePid) {
    LinuxProcessTable table;
    Child first(Child::Life::sleeps);
    const std::int32_t pid = first.pid();
    ASSERT_GT(pid, 0);
    ::usleep(20'000);
    capture(table);
    const auto old = table.proc_pid_rusage(pid);
    ASSERT_TRUE(old);
    EXPECT_EQ(table.proc_pid_rusage(pid)->ri_proc_start_abstime, old->ri_proc_start_abstime);
    first.end();
    const Child second(Child::Life::works, pid);
    if (second.pid() < 0) {
        GTEST_SKIP() << "choosing a pid takes CAP_CHECKPOINT_RESTORE";
    }
    ASSERT_EQ(second.pid(), pid);
    ::usleep(20'000);
    const auto successor = table.proc_pid_rusage(pid);
    ASSERT_TRUE(successor);
    EXPECT_NE(successor->ri_proc_start_abstime, old->ri_proc_start_abstime);
}

TEST(LiveProcesses, HoldTheMemoryThatTheyWrote) {
    LinuxProcessTable table;
    constexpr std::size_t kSize = std::size_t{64} << 20U;
    const auto before = table.proc_pid_rusage(table.getpid());
    void* const memory = ::mmap(nullptr, kSize, PROT_READ | PROT_WRITE,
                                MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    const auto after = table.proc_pid_rusage(table.getpid());
    ::munmap(memory, kSize);
    ASSERT_TRUE(before && after);
    EXPECT_GE(after->ri_phys_footprint, before->ri_phys_footprint + kSize * 9 / 10);
}

TEST(LiveProcesses, AreZombiesWithoutMemoryUntilTheirEndIsAskedFor) {
    LinuxProcessTable table;
    Child child(Child::Life::sleeps);
    ASSERT_GT(child.pid(), 0);
    capture(table);
    child.kill();
    siginfo_t end{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(child.pid()), &end, WEXITED | WNOWAIT), 0);
    const auto usage = table.proc_pid_rusage(child.pid());
    ASSERT_TRUE(usage);
    EXPECT_EQ(usage->ri_phys_footprint, 0);
    child.end();
    EXPECT_THAT(capture(table), Not(Contains(child.pid())));
}

TEST(LiveProcesses, DoNotIncludeTheThreadThatLooks) {
    LinuxProcessTable table;
    std::set<std::int32_t> found;
    std::int32_t thread = 0;
    capture(table);
    std::thread([&] {
        thread = ::gettid();
        found = capture(table);
    }).join();
    ASSERT_NE(thread, table.getpid());
    EXPECT_THAT(found, Contains(table.getpid()));
    EXPECT_THAT(found, Not(Contains(thread)));
}

TEST(LiveProcesses, CarryTheirProgramsName) {
    LinuxProcessTable table;
    std::array<char, 1024> buffer{};
    const int length = table.proc_name(table.getpid(), buffer);
    ASSERT_GT(length, 0);
    EXPECT_EQ(std::string(buffer.data(), static_cast<std::size_t>(length)),
              program_invocation_short_name);
}

}  // namespace
}  // namespace zephrine
