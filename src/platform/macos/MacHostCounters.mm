// SPDX-License-Identifier: MIT
// The seam's header comes first, here and wherever both are seen: Mach defines the names of its
// CPU states as macros, which would turn the seam's enumeration into numbers.
#include "platform/macos/MacHostCounters.h"

#include "platform/macos/HostRecords.h"

#import <Foundation/Foundation.h>
#include <mach/mach.h>
#include <sys/sysctl.h>

namespace zephrine {

MacHostCounters::MacHostCounters() : host_(::mach_host_self()) {}

MacHostCounters::~MacHostCounters() {
    ::mach_port_deallocate(mach_task_self(), host_);
}

std::optional<HostCPULoadInfo> MacHostCounters::host_statistics() {
    host_cpu_load_info_data_t record{};
    mach_msg_type_number_t count = HOST_CPU_LOAD_INFO_COUNT;
    if (::host_statistics(host_, HOST_CPU_LOAD_INFO, reinterpret_cast<host_info_t>(&record),
                          &count) != KERN_SUCCESS) {
        return std::nullopt;
    }
    return cpuLoadInfo(record, count);
}

std::optional<std::uint64_t> MacHostCounters::host_page_size() {
    vm_size_t size = 0;
    if (::host_page_size(host_, &size) != KERN_SUCCESS) {
        return std::nullopt;
    }
    return size;
}

std::optional<vm_statistics64> MacHostCounters::host_statistics64() {
    vm_statistics64_data_t record{};
    mach_msg_type_number_t count = HOST_VM_INFO64_COUNT;
    if (::host_statistics64(host_, HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&record),
                            &count) != KERN_SUCCESS) {
        return std::nullopt;
    }
    return pageCounts(record, count);
}

std::optional<std::int32_t> MacHostCounters::memorystatus_vm_pressure_level() {
    std::int32_t level = 0;
    std::size_t size = sizeof level;
    if (::sysctlbyname("kern.memorystatus_vm_pressure_level", &level, &size, nullptr, 0) != 0) {
        return std::nullopt;
    }
    return level;
}

std::uint64_t MacHostCounters::physicalMemory() {
    return NSProcessInfo.processInfo.physicalMemory;
}

double MacHostCounters::systemUptime() {
    return NSProcessInfo.processInfo.systemUptime;
}

int MacHostCounters::activeProcessorCount() {
    return static_cast<int>(NSProcessInfo.processInfo.activeProcessorCount);
}

}  // namespace zephrine
