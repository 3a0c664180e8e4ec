// SPDX-License-Identifier: MIT
// The absolute clock. Its unit is that of the CPU times in rusage_info, not nanoseconds.
#pragma once
#include <mach/mach.h>
#ifdef __cplusplus
extern "C" {
#endif
uint64_t mach_absolute_time(void);
#ifdef __cplusplus
}
#endif
