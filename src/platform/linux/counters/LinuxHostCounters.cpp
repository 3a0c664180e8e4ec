// SPDX-License-Identifier: MIT
// Only the reading happens here; what the texts mean is in the parsers of this folder.
#include "platform/linux/counters/LinuxHostCounters.h"

#include <unistd.h>

#include <array>
#include <utility>

#include "platform/linux/counters/Pressure.h"
#include "platform/linux/counters/ProcStat.h"

namespace zephrine {
namespace {

/// The first line of /proc/stat: eleven words, at most twenty digits each.
constexpr std::size_t kProcessorLineSize = 1024;
/// All processors' lines: some 200 of them fit the first size, more than any machine has the last.
constexpr std::size_t kFirstProcessorTextSize = std::size_t{16} * 1024;
constexpr std::size_t kLastProcessorTextSize = std::size_t{2} * 1024 * 1024;

}  // namespace

LinuxHostCounters::LinuxHostCounters(const std::string& proc, const std::string& sys,
                                     SecondsClock clock)
    : clock_(std::move(clock)),
      stat_(proc + "/stat"),
      meminfo_(proc + "/meminfo"),
      pressure_(proc + "/pressure/memory"),
      extras_(proc, sys) {}

std::optional<HostCPULoadInfo> LinuxHostCounters::host_statistics() {
    std::array<char, kProcessorLineSize> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init)
    const auto text = stat_.read(buffer);
    const auto ticks = text ? parseProcessorTicks(*text) : std::nullopt;
    if (!ticks) {
        return std::nullopt;
    }
    return ticks_.add(*ticks);
}

std::optional<std::uint64_t> LinuxHostCounters::host_page_size() {
    const long size = ::sysconf(_SC_PAGESIZE);
    return size > 0 ? std::optional(static_cast<std::uint64_t>(size)) : std::nullopt;
}

std::optional<vm_statistics64> LinuxHostCounters::host_statistics64() {
    freshMeminfo_ = readMeminfo();
    const auto pageSize = host_page_size();
    if (!freshMeminfo_ || !pageSize) {
        return std::nullopt;
    }
    const bool hasSwap = freshMeminfo_->swapTotal.value_or(0) > 0;
    return vmStatistics(*freshMeminfo_, extras_.read(hasSwap), *pageSize);
}

std::optional<std::int32_t> LinuxHostCounters::memorystatus_vm_pressure_level() {
    auto memory = std::exchange(freshMeminfo_, std::nullopt);
    if (!memory) {
        memory = readMeminfo();
    }
    std::array<char, 512> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init)
    const auto text = pressure_.read(buffer);
    return level_.update(memory, text ? parsePressure(*text) : std::nullopt, clock_());
}

std::uint64_t LinuxHostCounters::physicalMemory() {
    const auto memory = readMeminfo();
    return memory ? memory->memTotal.value_or(0) : 0;
}

double LinuxHostCounters::systemUptime() {
    return clock_();
}

int LinuxHostCounters::activeProcessorCount() {
    if (processorText_.empty()) {
        processorText_.resize(kFirstProcessorTextSize);
    }
    for (;;) {
        const auto text = stat_.read(processorText_);
        const auto count = text ? countProcessors(*text) : std::nullopt;
        const bool isCutOff = text && text->size() == processorText_.size();
        if (count || !isCutOff || processorText_.size() >= kLastProcessorTextSize) {
            return count.value_or(0);
        }
        processorText_.resize(processorText_.size() * 2);
    }
}

std::optional<Meminfo> LinuxHostCounters::readMeminfo() {
    std::array<char, 8192> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init)
    const auto text = meminfo_.read(buffer);
    return text ? std::optional(parseMeminfo(*text)) : std::nullopt;
}

}  // namespace zephrine
