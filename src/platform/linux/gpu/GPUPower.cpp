// SPDX-License-Identifier: MIT
// Files below device/power: Documentation/ABI/testing/sysfs-devices-power. What is read here is
// kept by the kernel's device core and does not touch the card.
#include "platform/linux/gpu/GPUPower.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/linux/base/TextScan.h"

namespace zephrine {
namespace {

constexpr double kIdlePercent = 1;
constexpr int kIdleReadingsBeforePause = 3;

/// The one line of a small file, read once.
std::string readLine(const std::string& path) {
    std::array<char, 64> buffer{};
    auto text = CounterFile(path).read(buffer);
    return std::string(text ? takeLine(*text).value_or("") : "");
}

}  // namespace

GPUPower::GPUPower(const std::string& cardPath)
    : cardPath_(cardPath), runtimeStatus_(cardPath + "/device/power/runtime_status") {}

bool GPUPower::mayBeRead(double now) {
    return isAwake() && now >= pauseEnd_;
}

bool GPUPower::isAwake() {
    std::array<char, 64> buffer{};
    auto text = runtimeStatus_.read(buffer);
    if (!text) {
        // A kernel built without power management has no such file, and its devices never sleep.
        // Any other failure leaves the question open, so the card is left alone.
        return errno == ENOENT;
    }
    const auto line = takeLine(*text);
    // "unsupported": the kernel does not manage this device's power at run time, so it stays as it
    // is, awake. "suspended", "suspending" and "error" are asleep; "resuming" is not our doing.
    return line == "active" || line == "unsupported";
}

void GPUPower::noteUtilization(double percent, double now) {
    if (percent > kIdlePercent) {
        idleReadings_ = 0;
        return;
    }
    if (++idleReadings_ < kIdleReadingsBeforePause) {
        return;
    }
    idleReadings_ = 0;
    const auto delay = autosuspendDelay();
    if (delay && !drivesDisplay()) {
        pauseEnd_ = now + *delay + 1;
    }
}

/// Seconds; absent when the card never falls asleep by itself.
std::optional<double> GPUPower::autosuspendDelay() const {
    const std::string power = cardPath_ + "/device/power/";
    if (readLine(power + "control") != "auto") {
        return std::nullopt;
    }
    const auto milliseconds = parseUnsigned(readLine(power + "autosuspend_delay_ms"));
    if (!milliseconds) {
        return std::nullopt;  // negative: not by itself
    }
    return static_cast<double>(*milliseconds) / 1000;
}

/// True when a screen shows this card's picture, which keeps the card awake anyway. A connector
/// that was never used may call itself on, and one whose screen sleeps may call itself enabled.
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

}  // namespace zephrine
