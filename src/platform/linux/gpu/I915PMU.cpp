// SPDX-License-Identifier: MIT
// The counters' numbers: Documentation/ABI/testing/sysfs-bus-event_source-devices-events. The ones
// of the engines ("rcs0-busy") are kept by the driver; neither opening nor reading them wakes the
// card. The xe driver has such counters too, but keeps the card awake for as long as one of them is
// open (xe_pmu_event_init in drivers/gpu/drm/xe/xe_pmu.c), so they are no use here.
#include "platform/linux/gpu/I915PMU.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/linux/base/CounterFile.h"
#include "platform/linux/base/TextScan.h"

namespace zephrine {
namespace fs = std::filesystem;

namespace {

/// Integrated graphics always sit at this address; the kernel calls their counters just "i915".
std::string pmuName(std::string address) {
    if (address == "0000:00:02.0") {
        return "i915";
    }
    std::ranges::replace(address, ':', '_');
    return "i915_" + address;
}

/// The number that the file at `path` begins with.
std::optional<std::uint64_t> readNumber(const std::string& path, std::string_view prefix = "",
                                        int base = 10) {
    std::array<char, 64> buffer{};
    const auto text = CounterFile(path).read(buffer);
    if (!text || !text->starts_with(prefix)) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    const char* const begin = text->data() + prefix.size();
    const auto result = std::from_chars(begin, text->data() + text->size(), value, base);
    return result.ec == std::errc() ? std::optional(value) : std::nullopt;
}

}  // namespace

std::unique_ptr<I915PMU> I915PMU::open(const std::string& sys, const std::string& address,
                                       const PerfOpener& openPerf) {
    const std::string pmu = sys + "/bus/event_source/devices/" + pmuName(address);
    const auto type = readNumber(pmu + "/type");
    const auto cpu = readNumber(pmu + "/cpumask").value_or(0);
    std::vector<Engine> engines;
    std::error_code error;
    fs::directory_iterator entry(pmu + "/events", error);
    for (; type && !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (!entry->path().filename().string().ends_with("-busy")) {
            continue;
        }
        const auto config = readNumber(entry->path().string(), "config=0x", 16);
        auto counter =
            config ? openPerf(static_cast<std::uint32_t>(*type), *config, static_cast<int>(cpu))
                   : FileDescriptor();
        if (!counter) {
            return nullptr;  // a figure that leaves out an engine would mislead
        }
        engines.push_back({.counter = std::move(counter), .rate = BusyRate()});
    }
    return engines.empty() ? nullptr : std::unique_ptr<I915PMU>(new I915PMU(std::move(engines)));
}

std::optional<double> I915PMU::utilization() {
    std::optional<double> busiest;
    for (Engine& engine : engines_) {
        std::array<std::uint64_t, 2> countAndTime{};
        if (::read(engine.counter.get(), countAndTime.data(), sizeof countAndTime) !=
            sizeof countAndTime) {
            return std::nullopt;
        }
        if (const auto percent = engine.rate.next(countAndTime[0], countAndTime[1])) {
            busiest = std::max(busiest.value_or(0), *percent);
        }
    }
    return busiest ? plausiblePercent(*busiest) : std::nullopt;
}

}  // namespace zephrine
