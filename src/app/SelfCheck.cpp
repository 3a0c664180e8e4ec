// SPDX-License-Identifier: MIT
#include "app/SelfCheck.h"

#include <array>
#include <string>

#include "platform/Trap.h"
#include "processes/ProcessSnapshot.h"
#include "sampling/History.h"
#include "sampling/Sampler.h"
#include "text/Decimal.h"

namespace zephrine {

namespace {

constexpr CPUTicks older{.user = 10, .system = 10, .idle = 70, .nice = 10};
constexpr CPUTicks newer{.user = 20, .system = 20, .idle = 140, .nice = 20};

vm_statistics64 pageCounts(std::uint32_t external) {
    return {.active_count = 10,
            .inactive_count = 10,
            .wire_count = 5,
            .compressor_page_count = 5,
            .purgeable_count = 2,
            .external_page_count = external};
}

bool historyKeepsFiveMinutes() {
    History history;
    for (int i = 0; i <= 1000; ++i) {
        history.append({.time = static_cast<double>(i), .cpu = 20, .ram = 50, .gpu = {}});
    }
    return history.samples.size() == 301 && history.samples.front().time == 700.0;
}

ProcessSnapshot snapshotOf(ProcessReading reading) {
    return {.processes = {{1, reading}}};
}

ProcessSnapshot earlier() {
    return snapshotOf({.pid = 1,
                       .name = "Test",
                       .startTime = 1,
                       .cpuTime = 24000000,
                       .clock = 240000000,
                       .memory = 100});
}

ProcessSnapshot later(const char* name, std::uint64_t startTime) {
    return snapshotOf({.pid = 1,
                       .name = name,
                       .startTime = startTime,
                       .cpuTime = 48000000,
                       .clock = 264000000,
                       .memory = 100});
}

constexpr int tenCores = 10;

/// Whether no share is claimed for the only process, if it is listed at all.
bool claimsNoShare(const ProcessSnapshot& snapshot) {
    const auto rows = snapshot.usage(earlier(), tenCores);
    return rows.empty() || !rows.front().cpu;
}

constexpr std::array<FixedCheck, 10> checks{{
    {"30 busy ticks of 100 are 30 percent", [] { return newer.usage(older) == 30.0; }},
    {"no elapsed ticks give no usage", [] { return !older.usage(older); }},
    {"a counter that wrapped round still counts",
     [] {
         const CPUTicks beforeWrap{.user = 4294967294U, .system = 0, .idle = 0, .nice = 0};
         const CPUTicks afterWrap{.user = 3, .system = 0, .idle = 5, .nice = 0};
         return afterWrap.usage(beforeWrap) == 50.0;
     }},
    {"used memory leaves out what can be reclaimed",
     [] { return MemoryReading::usedBytes(pageCounts(8), 4096, 409600) == 81920; }},
    {"used memory is at most the total",
     [] { return MemoryReading::usedBytes(pageCounts(8), 4096, 4096) == 4096; }},
    {"used memory is at least nothing",
     [] { return MemoryReading::usedBytes(pageCounts(100), 4096, 409600) == 0; }},
    {"the history keeps five minutes", historyKeepsFiveMinutes},
    {"one busy core of ten is 10 percent",
     [] {
         const auto rows = later("Test", 1).usage(earlier(), tenCores);
         return !rows.empty() && rows.front().cpu == 10.0;
     }},
    {"a reused pid has no share yet", [] { return claimsNoShare(later("New process", 2)); }},
    {"no elapsed time gives no share", [] { return claimsNoShare(earlier()); }},
}};

[[noreturn]] void fatalError(std::ostream& errors) {
    // The location is part of the report's form: it stays as it is, wherever this code moves.
    errors << "Zephrine/SelfCheck:37: Fatal error: Unable to read live CPU or RAM statistics"
           << std::endl;
    trap();
}

LiveReadings takeLiveReadings(const SelfCheckEnvironment& environment) {
    const auto snapshot = ProcessSnapshot::capture(environment.processTable);
    trapUnless(snapshot.processes.contains(environment.processTable.getpid()));

    Sampler sampler(environment.host, environment.gpuRegistry);
    sampler.cpu();  // Only sets the baseline.
    environment.sleepForTimeInterval(1.0);
    const auto cpu = sampler.cpu();
    const auto memory = sampler.memory();
    if (!cpu || !memory) {
        fatalError(environment.errors);
    }
    return {.cpu = *cpu,
            .memory = *memory,
            .gpu = sampler.gpu(),
            .pressure = sampler.pressure(),
            .processCount = snapshot.processes.size()};
}

}  // namespace

std::span<const FixedCheck> fixedChecks() {
    return checks;
}

void reportLiveReadings(const LiveReadings& readings, std::ostream& output) {
    const auto& [cpu, memory, gpu, pressure, processCount] = readings;
    output << "GPU: " << (gpu ? decimal(*gpu, 0) + "%" : "unavailable")
           << "; memory pressure: " << title(pressure)
           << "; readable processes: " << std::to_string(processCount) << std::endl;
    trapUnless(cpu >= 0 && cpu <= 100 && memory.used <= memory.total);
    output << "Checks passed. Live CPU: " << decimal(cpu, 1)
           << "%, RAM: " << decimal(memory.percent(), 1) << "% ("
           << decimal(memory.usedGigabytes(), 1) << " / " << decimal(memory.totalGigabytes(), 1)
           << " GB)" << std::endl;
}

void selfCheck(const SelfCheckEnvironment& environment) {
    for (const FixedCheck& check : environment.checks) {
        trapUnless(check.holds());
    }
    reportLiveReadings(takeLiveReadings(environment), environment.output);
}

}  // namespace zephrine
