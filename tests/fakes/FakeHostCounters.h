// SPDX-License-Identifier: MIT
// Counters that a test sets.
#pragma once

#include <utility>

#include "fakes/CallLog.h"
#include "platform/HostCounters.h"

namespace zephrine {

class FakeHostCounters : public HostCounters {
public:
    explicit FakeHostCounters(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    std::optional<HostCPULoadInfo> ticks = HostCPULoadInfo{10, 10, 70, 10};
    std::optional<std::uint64_t> pageSize = 4096;
    std::optional<vm_statistics64> statistics = vm_statistics64{};
    std::optional<std::int32_t> pressureLevel = 1;
    std::uint64_t memory = 16ULL << 30U;
    double uptime = 1000;
    int processors = 4;
    bool ticksRun = false;  ///< whether the processors work between any two readings

    std::optional<HostCPULoadInfo> host_statistics() override {
        calls.note("host_statistics");
        if (ticksRun) {
            advance(30, 70);
        }
        return ticks;
    }
    std::optional<std::uint64_t> host_page_size() override {
        calls.note("host_page_size");
        return pageSize;
    }
    std::optional<vm_statistics64> host_statistics64() override {
        calls.note("host_statistics64");
        return statistics;
    }
    std::optional<std::int32_t> memorystatus_vm_pressure_level() override {
        calls.note("memorystatus_vm_pressure_level");
        return pressureLevel;
    }
    std::uint64_t physicalMemory() override {
        calls.note("physicalMemory");
        return memory;
    }
    double systemUptime() override {
        calls.note("systemUptime");
        return uptime;
    }
    int activeProcessorCount() override { return processors; }

    /// Adds `busy` and `idle` ticks, as if that time had passed.
    void advance(std::uint32_t busy, std::uint32_t idle) {
        (*ticks)[CPU_STATE_USER] += busy;
        (*ticks)[CPU_STATE_IDLE] += idle;
    }

    /// Sets the page counts so that `bytes` are in use.
    void setUsed(std::uint64_t bytes) {
        statistics = vm_statistics64{.active_count = static_cast<std::uint32_t>(bytes / 4096)};
    }
};

}  // namespace zephrine
