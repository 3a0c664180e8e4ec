// SPDX-License-Identifier: MIT
// How a capture runs: the listing looks for new pids (see PidListing.h) and reads no known process;
// then each process's CPU clock is read as its usage is asked for. That is the only place where it
// is read, since the share is Δcpu ÷ Δclock and the caller reads `clock` right after: nanoseconds
// taken during the listing would be older than their clock by a varying part of the capture.
#include "platform/linux/processes/LinuxProcessTable.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/linux/processes/ProcPidMemory.h"
#include "platform/linux/processes/ProcessName.h"

namespace zephrine {

namespace {

constexpr std::int32_t kTurns = 16;

/// Whether /proc/self leads to our own pid.
bool showsOurPids(int proc) {
    std::array<char, 32> link;
    const ssize_t length = ::readlinkat(proc, "self", link.data(), link.size());
    return length > 0 && pidFromName({link.data(), static_cast<std::size_t>(length)}) == ::getpid();
}

/// LXCFS and its like mount a loadavg of their own over the kernel's, with the pids of another
/// namespace in it.
bool onSameFilesystem(int folder, const char* name) {
    struct stat ofFolder {};
    struct stat ofFile {};
    return ::fstat(folder, &ofFolder) == 0 && ::fstatat(folder, name, &ofFile, 0) == 0 &&
           ofFolder.st_dev == ofFile.st_dev;
}

}  // namespace

LinuxProcessTable::LinuxProcessTable(const std::string& procRoot, CPUClock cpuClock,
                                     CommandLineReaders readers)
    : cpuClock_(std::move(cpuClock)),
      commandLineReaders_(std::move(readers)),
      proc_(::open(procRoot.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      loadavg_(procRoot + "/loadavg"),
      swaps_(procRoot + "/swaps"),
      pageSize_(static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE))) {
    if (proc_ && !showsOurPids(proc_.get())) {
        proc_ = FileDescriptor();
    }
    loadavgIsOurs_ = proc_ && onSameFilesystem(proc_.get(), "loadavg");
}

int LinuxProcessTable::proc_listallpids(std::span<std::int32_t> pids) {
    // A capture asks for the count and then for the pids: one look at the system serves both.
    const bool alreadyLooked = std::exchange(counted_, pids.empty());
    if (!proc_ || ((pids.empty() || !alreadyLooked) && !discover())) {
        return -1;
    }
    if (pids.empty()) {
        return static_cast<int>(processes_.size());
    }
    const std::size_t count = std::min(pids.size(), processes_.size());
    auto process = processes_.begin();
    for (std::size_t slot = 0; slot < count; ++slot, ++process) {
        pids[slot] = process->first;
    }
    return static_cast<int>(count);
}

bool LinuxProcessTable::discover() {
    const ListingPlan plan = gate_.next(readNewestPid());
    turn_ = (turn_ + 1) % kTurns;
    std::array<char, 4096> buffer;
    swapInUse_ = swapInUse(swaps_.read(buffer).value_or(""));
    if (plan.distrustKept) {
        for (auto& [pid, process] : processes_) {
            process.current = false;
        }
    }
    if (plan.listAll) {
        return listAll();
    }
    for (std::int32_t pid = plan.after + 1; pid <= plan.last; ++pid) {
        if (!processes_.contains(pid) && cpuClock_(pid)) {
            processes_.try_emplace(pid);
        }
    }
    return true;
}

bool LinuxProcessTable::listAll() {
    ++listing_;
    const auto found = [this](std::int32_t pid) { processes_[pid].listing = listing_; };
    if (!listPids(proc_.get(), found)) {
        return false;
    }
    std::erase_if(processes_,
                  [this](const auto& entry) { return entry.second.listing < listing_; });
    return true;
}

std::optional<std::int32_t> LinuxProcessTable::readNewestPid() {
    std::array<char, 256> buffer;
    return loadavgIsOurs_ ? newestPid(loadavg_.read(buffer).value_or("")) : std::nullopt;
}

std::optional<rusage_info_v2> LinuxProcessTable::proc_pid_rusage(std::int32_t pid) {
    if (!proc_ || pid < 1) {
        return std::nullopt;
    }
    const auto cpuTime = cpuClock_(pid);
    const auto found = processes_.find(pid);
    if (cpuTime && found != processes_.end() && holds(found->second, pid, *cpuTime)) {
        const Process& process = found->second;
        // The kernel counts nanoseconds for the sum only and splits it by sampling: the sum it is.
        return rusage_info_v2{.ri_user_time = process.cpuTime,
                              .ri_phys_footprint = process.footprint,
                              .ri_proc_start_abstime = process.startTime};
    }
    const auto usage = cpuTime ? read(pid) : std::nullopt;
    if (!usage) {
        processes_.erase(pid);
    }
    return usage;
}

/// Whether what is kept still describes the process with this pid. A successor under the same pid
/// would need the very same nanoseconds to pass, in a stretch in which the pids did not even go
/// round; only 0, a process that has not run yet, could coincide, and is never trusted.
bool LinuxProcessTable::holds(const Process& process, std::int32_t pid,
                              std::uint64_t cpuTime) const {
    const bool itsTurn = pid % kTurns == turn_;
    return process.current && process.cpuTime == cpuTime && cpuTime != 0 && !itsTurn;
}

/// Reads a process whole. A descriptor of procfs stays with the process that it was opened for and
/// fails once that is gone: as `stat` is opened first and read last, a success means that the pid
/// belonged to this process throughout, so that clock and memory are its own as well.
std::optional<rusage_info_v2> LinuxProcessTable::read(std::int32_t pid) {
    const FileDescriptor file = open(pid, "/stat");
    if (!file) {
        return std::nullopt;
    }
    const auto footprint = readFootprint(pid);
    const auto cpuTime = cpuClock_(pid);
    std::array<char, 2048> buffer;
    const auto stat = parseProcPidStat(file.read(buffer).value_or(""));
    // The number of this very thread looks like a process, with our own process's clock.
    const bool isThisThread = pid == ::gettid() && pid != ::getpid();
    if (!footprint || !cpuTime || !stat || isThisThread) {
        return std::nullopt;
    }
    keep(pid, *stat, *cpuTime, *footprint);
    return rusage_info_v2{.ri_user_time = *cpuTime,
                          .ri_phys_footprint = *footprint,
                          .ri_proc_start_abstime = stat->startTime};
}

FileDescriptor LinuxProcessTable::open(std::int32_t pid, std::string_view file) const {
    std::array<char, 32> path{};  // "4194304/cmdline" fits, and stays ended by a zero
    const auto end = std::to_chars(path.data(), path.data() + 16, pid).ptr;
    std::copy(file.begin(), file.end(), end);
    return FileDescriptor(::openat(proc_.get(), path.data(), O_RDONLY | O_CLOEXEC));
}

/// Bytes. A zombie has given its memory back and reads as 0; its CPU clock stands still.
std::optional<std::uint64_t> LinuxProcessTable::readFootprint(std::int32_t pid) const {
    std::array<char, 8192> buffer;
    if (swapInUse_) {
        const FileDescriptor status = open(pid, "/status");
        const auto text = status ? status.read(buffer) : std::nullopt;
        if (const auto bytes = anonymousAndSwappedBytes(text.value_or(""))) {
            return bytes;
        }
    }
    const FileDescriptor statm = open(pid, "/statm");
    const auto text = statm ? statm.read(buffer) : std::nullopt;
    const auto pages = anonymousPages(text.value_or(""));
    return pages ? std::optional(*pages * pageSize_) : std::nullopt;
}

void LinuxProcessTable::keep(std::int32_t pid, const ProcPidStat& stat, std::uint64_t cpuTime,
                             std::uint64_t footprint) {
    Process& process = processes_[pid];
    const bool sameProcess = process.startTime == stat.startTime;
    const std::string_view kept = std::string_view(process.name).substr(0, process.commLength);
    if (!sameProcess || kept != stat.comm) {
        keepName(process, pid, stat.comm);
    }
    process.current = true;
    process.cpuTime = cpuTime;
    process.startTime = stat.startTime;
    process.footprint = footprint;
}

void LinuxProcessTable::keepName(Process& process, std::int32_t pid, std::string_view comm) const {
    const auto name =
        comm.size() == kLongestComm ? readCompletedName(pid, comm) : std::string(comm);
    process.name = name.value_or(std::string(comm));
    process.commLength = name ? comm.size() : 0;
}

/// Reading the command line takes the process's memory lock: only for a new process or a new
/// program in it, and only when the kernel's name was cut off. Of all that is read here only this
/// can get stuck, where another holds that lock. One stuck thread is enough: as long as it waits,
/// nobody else tries, and there is no name.
std::optional<std::string> LinuxProcessTable::readCompletedName(std::int32_t pid,
                                                                std::string_view comm) const {
    std::optional<std::string> name;
    if (commandLineReaders_->fetch_add(1) == 0) {
        std::array<char, 4096> buffer;
        const FileDescriptor file = open(pid, "/cmdline");
        const auto cmdline = file ? file.read(buffer) : std::nullopt;
        name = completedProcessName(comm, cmdline.value_or(""));
    }
    commandLineReaders_->fetch_sub(1);
    return name;
}

int LinuxProcessTable::proc_name(std::int32_t pid, std::span<char> buffer) {
    auto found = processes_.find(pid);
    if (found == processes_.end() || !found->second.current) {
        if (!proc_pid_rusage(pid)) {
            return 0;
        }
        found = processes_.find(pid);
    }
    const std::string& name = found->second.name;
    const std::size_t length = std::min(name.size(), buffer.size());
    std::copy_n(name.begin(), length, buffer.begin());
    return static_cast<int>(length);
}

std::uint64_t LinuxProcessTable::mach_absolute_time() {
    return monotonicTime();
}

std::int32_t LinuxProcessTable::getpid() {
    return ::getpid();
}

}  // namespace zephrine
