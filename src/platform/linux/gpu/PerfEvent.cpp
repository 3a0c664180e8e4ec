// SPDX-License-Identifier: MIT
// glibc has no wrapper for this system call.
#include "platform/linux/gpu/PerfEvent.h"

#include <linux/perf_event.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace zephrine {

FileDescriptor openPerfEvent(std::uint32_t type, std::uint64_t config, int cpu) {
    constexpr pid_t kAllProcesses = -1;
    constexpr int kNoGroup = -1;
    perf_event_attr attributes{};
    attributes.size = sizeof attributes;
    attributes.type = type;
    attributes.config = config;
    attributes.read_format = PERF_FORMAT_TOTAL_TIME_ENABLED;
    return FileDescriptor(static_cast<int>(::syscall(
        SYS_perf_event_open, &attributes, kAllProcesses, cpu, kNoGroup, PERF_FLAG_FD_CLOEXEC)));
}

}  // namespace zephrine
