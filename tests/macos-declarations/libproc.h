// SPDX-License-Identifier: MIT
// The list of processes and what each has used.
#pragma once
#include <stdint.h>
#include <sys/resource.h>
#include <sys/types.h>
#ifdef __cplusplus
extern "C" {
#endif
int proc_listallpids(void* buffer, int buffersize);
int proc_name(int pid, void* buffer, uint32_t buffersize);
int proc_pid_rusage(int pid, int flavor, rusage_info_t* buffer);
#ifdef __cplusplus
}
#endif
