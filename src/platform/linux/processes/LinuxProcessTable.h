// SPDX-License-Identifier: MIT
// The process table of Linux, made so that a capture costs next to nothing for a process that
// sleeps: its CPU clock is read, and only where that has moved are its files in /proc read again.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/ProcessTable.h"
#include "platform/linux/base/CounterFile.h"
#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/processes/PidListing.h"
#include "platform/linux/processes/ProcPidStat.h"
#include "platform/linux/processes/ProcessClock.h"

namespace zephrine {

/// How many threads are reading the command line of a process. Tables of one program share it.
using CommandLineReaders = std::shared_ptr<std::atomic<int>>;

class LinuxProcessTable final : public ProcessTable {
public:
    using CPUClock = std::function<std::optional<std::uint64_t>(std::int32_t pid)>;

    /// `procRoot` is where procfs is mounted; `cpuClock` answers as `processCPUTime` does. Where
    /// procfs belongs to another pid namespace than this process there are no processes: its pids
    /// would name others here. While `readers` is not 0 names stay as short as the kernel keeps
    /// them.
    explicit LinuxProcessTable(const std::string& procRoot = "/proc",
                               CPUClock cpuClock = processCPUTime,
                               CommandLineReaders readers = std::make_shared<std::atomic<int>>(0));

    int proc_listallpids(std::span<std::int32_t> pids) override;
    std::optional<rusage_info_v2> proc_pid_rusage(std::int32_t pid) override;
    int proc_name(std::int32_t pid, std::span<char> buffer) override;
    std::uint64_t mach_absolute_time() override;
    std::int32_t getpid() override;

private:
    /// What is kept of a process from one capture to the next.
    struct Process {
        bool current = false;       ///< the other fields hold
        std::uint64_t listing = 0;  ///< the last whole listing that it was in
        std::uint64_t cpuTime = 0;
        std::uint64_t startTime = 0;
        std::uint64_t footprint = 0;
        std::size_t commLength = 0;  ///< how much of `name` the kernel gave; 0 to ask again
        std::string name;
    };

    bool discover();
    bool listAll();
    std::optional<std::int32_t> readNewestPid();
    std::optional<rusage_info_v2> read(std::int32_t pid);
    [[nodiscard]] bool holds(const Process& process, std::int32_t pid, std::uint64_t cpuTime) const;
    [[nodiscard]] FileDescriptor open(std::int32_t pid, std::string_view file) const;
    [[nodiscard]] std::optional<std::uint64_t> readFootprint(std::int32_t pid) const;
    void keep(std::int32_t pid, const ProcPidStat& stat, std::uint64_t cpuTime,
              std::uint64_t footprint);
    void keepName(Process& process, std::int32_t pid, std::string_view comm) const;
    [[nodiscard]] std::optional<std::string> readCompletedName(std::int32_t pid,
                                                               std::string_view comm) const;

    CPUClock cpuClock_;
    CommandLineReaders commandLineReaders_;
    FileDescriptor proc_;
    CounterFile loadavg_;
    CounterFile swaps_;
    bool loadavgIsOurs_ = false;
    std::uint64_t pageSize_;
    ListingGate gate_;
    std::unordered_map<std::int32_t, Process> processes_;
    std::uint64_t listing_ = 0;  ///< whole listings so far
    std::int32_t turn_ = 0;      ///< which sixteenth of the sleeping processes is read again
    bool swapInUse_ = false;
    bool counted_ = false;  ///< the last call of `proc_listallpids` asked for the count
};

}  // namespace zephrine
