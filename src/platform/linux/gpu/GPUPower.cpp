// SPDX-License-Identifier: MIT
// Files below device/power: Documentation/ABI/testing/sysfs-devices-power. What is read here is
// kept by the kernel's device core and does not touch the card.
#include "platform/linux/gpu/GPUPower.h"

#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/linux/base/TextScan.h"

namespace zephrine {
namespace {

/// The one line of a small file, read once; empty when it cannot be read.
std::string readLine(const std::string& path) {
    std::array<char, 64> buffer{};
    auto text = CounterFile(path).read(buffer);
    return std::string(text ? takeLine(*text).value_or("") : "");
}

}  // namespace

GPUPower::GPUPower(const GraphicsCard& card)
    : cardPath_(card.path),
      powerPath_(card.device + "/power/"),
      runtimeStatus_(powerPath_ + "runtime_status") {}

bool GPUPower::isAwake() {
    std::array<char, 64> buffer{};
    auto text = runtimeStatus_.read(buffer);
    if (!text) {
        // A kernel built without power management has no such file, and its devices never sleep.
        // Any other failure leaves the question open, so the card is left alone.
        return runtimeStatus_.error() == std::errc::no_such_file_or_directory;
    }
    const auto line = takeLine(*text);
    // "unsupported": the kernel does not manage this device's power at run time, so it stays as it
    // is, awake. "suspended", "suspending" and "error" are asleep; "resuming" is not our doing.
    return line == "active" || line == "unsupported";
}

std::optional<double> GPUPower::secondsToSleep() const {
    if (readLine(powerPath_ + "control") != "auto") {
        return std::nullopt;
    }
    const std::string delay = readLine(powerPath_ + "autosuspend_delay_ms");
    if (delay.empty()) {
        return 0;  // EIO: this driver waits for nothing
    }
    const auto milliseconds = parseUnsigned(delay);
    if (!milliseconds) {
        return std::nullopt;  // negative: not by itself
    }
    return static_cast<double>(*milliseconds) / 1000;
}

/// A connector that was never used may call itself on, and one whose screen sleeps may call itself
/// enabled.
bool GPUPower::drivesDisplay() const {
    const std::string prefix = cardPath_.substr(cardPath_.rfind('/') + 1) + "-";
    std::error_code error;
    for (std::filesystem::directory_iterator entry(cardPath_, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string connector = entry->path().string();
        if (entry->path().filename().string().starts_with(prefix) &&
            readLine(connector + "/enabled") == "enabled" &&
            readLine(connector + "/dpms") == "On") {
            return true;
        }
    }
    return false;
}

bool IdleCount::reaches(double percent) {
    constexpr double kIdlePercent = 1;
    constexpr int kReadings = 3;
    readings_ = percent > kIdlePercent ? 0 : readings_ + 1;
    if (readings_ < kReadings) {
        return false;
    }
    readings_ = 0;
    return true;
}

}  // namespace zephrine
