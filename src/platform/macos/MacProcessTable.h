// SPDX-License-Identifier: MIT
// The processes, from libproc. C functions only: it runs on the background worker.
#pragma once

#include "platform/ProcessTable.h"

namespace zephrine {

class MacProcessTable final : public ProcessTable {
public:
    int proc_listallpids(std::span<std::int32_t> pids) override;
    std::optional<rusage_info_v2> proc_pid_rusage(std::int32_t pid) override;
    int proc_name(std::int32_t pid, std::span<char> buffer) override;
    std::uint64_t mach_absolute_time() override;
    std::int32_t getpid() override;
};

}  // namespace zephrine
