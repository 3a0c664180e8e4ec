// SPDX-License-Identifier: MIT
// The cost of one capture of the machine's processes, most of which sleep: with the table as it is,
// and read whole each time, as a table without memory would have to.
#include <benchmark/benchmark.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <vector>

#include "platform/linux/processes/LinuxProcessTable.h"
#include "processes/ProcessSnapshot.h"

namespace zephrine {
namespace {

/// Children of this program that sleep as long as it lives.
class Sleepers {
public:
    explicit Sleepers(int count) {
        for (int index = 0; index < count; ++index) {
            const pid_t pid = ::fork();
            if (pid == 0) {
                ::prctl(PR_SET_PDEATHSIG, SIGKILL);
                for (;;) {
                    ::pause();
                }
            }
            if (pid > 0) {
                pids_.push_back(pid);
            }
        }
        ::usleep(100'000);
    }
    ~Sleepers() {
        for (const pid_t pid : pids_) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, nullptr, 0);
        }
    }
    Sleepers(const Sleepers&) = delete;
    Sleepers& operator=(const Sleepers&) = delete;

private:
    std::vector<pid_t> pids_;
};

/// What a capture asks the table for; the number of processes that answered.
int visitAll(LinuxProcessTable& table, std::vector<std::int32_t>& pids) {
    pids.resize(static_cast<std::size_t>(table.proc_listallpids({})) + 128);
    const int count = table.proc_listallpids(pids);
    std::array<char, 1024> name;
    int answers = 0;
    for (int slot = 0; slot < count; ++slot) {
        const std::int32_t pid = pids[static_cast<std::size_t>(slot)];
        if (table.proc_pid_rusage(pid)) {
            benchmark::DoNotOptimize(table.mach_absolute_time());
            benchmark::DoNotOptimize(table.proc_name(pid, name));
            ++answers;
        }
    }
    return answers;
}

void reportPerProcess(benchmark::State& state, int processes) {
    state.counters["processes"] = processes;
    state.counters["per process"] =
        benchmark::Counter(static_cast<double>(state.iterations()) * processes,
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void CaptureWithClockGate(benchmark::State& state) {
    const Sleepers sleepers(static_cast<int>(state.range(0)));
    LinuxProcessTable table;
    std::vector<std::int32_t> pids;
    int processes = visitAll(table, pids);
    for ([[maybe_unused]] auto iteration : state) {
        processes = visitAll(table, pids);
    }
    reportPerProcess(state, processes);
}
BENCHMARK(CaptureWithClockGate)->Arg(200)->Arg(1000)->Unit(benchmark::kMicrosecond);

void CaptureByReadingAll(benchmark::State& state) {
    const Sleepers sleepers(static_cast<int>(state.range(0)));
    std::vector<std::int32_t> pids;
    int processes = 0;
    for ([[maybe_unused]] auto iteration : state) {
        LinuxProcessTable table;
        processes = visitAll(table, pids);
    }
    reportPerProcess(state, processes);
}
BENCHMARK(CaptureByReadingAll)->Arg(200)->Arg(1000)->Unit(benchmark::kMicrosecond);

void SnapshotOfAllProcesses(benchmark::State& state) {
    const Sleepers sleepers(static_cast<int>(state.range(0)));
    LinuxProcessTable table;
    std::size_t processes = 0;
    for ([[maybe_unused]] auto iteration : state) {
        const ProcessSnapshot snapshot = ProcessSnapshot::capture(table);
        processes = snapshot.processes.size();
    }
    reportPerProcess(state, static_cast<int>(processes));
}
BENCHMARK(SnapshotOfAllProcesses)->Arg(200)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zephrine
