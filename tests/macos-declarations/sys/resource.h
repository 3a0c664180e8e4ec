// SPDX-License-Identifier: MIT
// The resource-usage record of a process, on top of the system's own header of this name.
#pragma once
#include <stdint.h>
#include_next <sys/resource.h>
#define RUSAGE_INFO_V2 2
typedef void* rusage_info_t;
struct rusage_info_v2 {
    uint8_t ri_uuid[16];
    uint64_t ri_user_time, ri_system_time, ri_pkg_idle_wkups, ri_interrupt_wkups, ri_pageins,
        ri_wired_size, ri_resident_size, ri_phys_footprint, ri_proc_start_abstime,
        ri_proc_exit_abstime, ri_child_user_time, ri_child_system_time, ri_child_pkg_idle_wkups,
        ri_child_interrupt_wkups, ri_child_pageins, ri_child_elapsed_abstime, ri_diskio_bytesread,
        ri_diskio_byteswritten;
};
