// SPDX-License-Identifier: MIT
// Mach's host interfaces. As in the kernel's own headers the CPU states are macros, so an
// enumeration of the same names has to be seen before this header.
#pragma once
#include <stddef.h>
#include <stdint.h>
#ifdef __cplusplus
extern "C" {
#endif
typedef int kern_return_t;
typedef int integer_t;
typedef unsigned int natural_t;
typedef natural_t mach_port_t;
typedef mach_port_t host_t;
typedef natural_t mach_msg_type_number_t;
typedef uintptr_t vm_size_t;
typedef int host_flavor_t;
typedef integer_t* host_info_t;
typedef integer_t* host_info64_t;
#define KERN_SUCCESS 0
#define MACH_PORT_NULL 0
#define CPU_STATE_MAX 4
#define CPU_STATE_USER 0
#define CPU_STATE_SYSTEM 1
#define CPU_STATE_IDLE 2
#define CPU_STATE_NICE 3
struct host_cpu_load_info {
    natural_t cpu_ticks[CPU_STATE_MAX];
};
typedef struct host_cpu_load_info host_cpu_load_info_data_t;
#define HOST_CPU_LOAD_INFO 3
#define HOST_CPU_LOAD_INFO_COUNT \
    ((mach_msg_type_number_t)(sizeof(host_cpu_load_info_data_t) / sizeof(integer_t)))
#define HOST_VM_INFO64 4
struct vm_statistics64 {
    natural_t free_count, active_count, inactive_count, wire_count;
    uint64_t zero_fill_count, reactivations, pageins, pageouts, faults, cow_faults, lookups, hits,
        purges;
    natural_t purgeable_count, speculative_count;
    uint64_t decompressions, compressions, swapins, swapouts;
    natural_t compressor_page_count, throttled_count, external_page_count, internal_page_count;
    uint64_t total_uncompressed_pages_in_compressor;
} __attribute__((aligned(8)));
typedef struct vm_statistics64 vm_statistics64_data_t;
#define HOST_VM_INFO64_COUNT \
    ((mach_msg_type_number_t)(sizeof(vm_statistics64_data_t) / sizeof(integer_t)))
extern mach_port_t mach_task_self_;
#define mach_task_self() mach_task_self_
mach_port_t mach_host_self(void);
kern_return_t mach_port_deallocate(mach_port_t task, mach_port_t name);
kern_return_t host_statistics(host_t, host_flavor_t, host_info_t, mach_msg_type_number_t*);
kern_return_t host_statistics64(host_t, host_flavor_t, host_info64_t, mach_msg_type_number_t*);
kern_return_t host_page_size(host_t, vm_size_t*);
#ifdef __cplusplus
}
#endif
