// SPDX-License-Identifier: MIT
// Processes that a test makes up.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "fakes/CallLog.h"
#include "platform/ProcessTable.h"

namespace zephrine {

class FakeProcessTable : public ProcessTable {
public:
    explicit FakeProcessTable(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    struct Process {
        std::optional<rusage_info_v2> usage = rusage_info_v2{};
        std::optional<std::string> name = "Test";
    };
    std::map<std::int32_t, Process> processes;
    std::vector<std::int32_t> listing;   ///< what the list gives; by default the keys above
    std::optional<int> reportedCount;    ///< what counting gives; by default the list's size
    std::optional<int> reportedWritten;  ///< what listing returns; by default what it wrote
    std::size_t bufferSize = 0;          ///< slots that the last listing offered
    std::uint64_t clock = 1000;
    std::uint64_t clockStep = 1;  ///< how far each look at the clock moves it
    std::int32_t ownPid = 1;

    int proc_listallpids(std::span<std::int32_t> pids) override {
        std::vector<std::int32_t> all = listing;
        if (all.empty()) {
            std::transform(processes.begin(), processes.end(), std::back_inserter(all),
                           [](const auto& entry) { return entry.first; });
        }
        const int count = reportedCount.value_or(static_cast<int>(all.size()));
        calls.note("proc_listallpids");
        if (pids.empty()) {
            return count;
        }
        bufferSize = pids.size();
        std::copy_n(all.begin(), std::min(all.size(), pids.size()), pids.begin());
        return reportedWritten.value_or(static_cast<int>(std::min(all.size(), pids.size())));
    }
    std::optional<rusage_info_v2> proc_pid_rusage(std::int32_t pid) override {
        calls.note("proc_pid_rusage");
        const auto entry = processes.find(pid);
        return entry == processes.end() ? std::nullopt : entry->second.usage;
    }
    int proc_name(std::int32_t pid, std::span<char> buffer) override {
        calls.note("proc_name");
        const auto& name = processes.at(pid).name;
        if (!name) {
            return -1;
        }
        std::copy_n(name->begin(), std::min(name->size(), buffer.size()), buffer.begin());
        return static_cast<int>(name->size());
    }
    std::uint64_t mach_absolute_time() override {
        calls.note("mach_absolute_time");
        return clock += clockStep;
    }
    std::int32_t getpid() override { return ownPid; }
};

}  // namespace zephrine
