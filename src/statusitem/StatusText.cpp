// SPDX-License-Identifier: MIT
#include "statusitem/StatusText.h"

#include "text/Decimal.h"

namespace zephrine {

namespace {

constexpr const char* absent = "  — ";

std::string paddedPercent(double value) {
    return decimal(value, 0, 3) + "%";
}

}  // namespace

std::string cpuText(std::optional<double> cpu) {
    return cpu ? paddedPercent(*cpu) : absent;
}

std::string ramText(const std::optional<MemoryReading>& memory, bool ramInGB) {
    if (!memory) {
        return absent;
    }
    return ramInGB ? decimal(memory->usedGigabytes(), 1, 4) + "G"
                   : paddedPercent(memory->percent());
}

std::string imageKey(const std::string& cpuText, const std::string& ramText, double fontSize,
                     MemoryPressure pressure, bool isDark) {
    return cpuText + "-" + ramText + "-" + decimal(fontSize, 1) + "-" +
           std::to_string(rawValue(pressure)) + "-" + (isDark ? "true" : "false");
}

std::string statusDescription(const std::string& cpuText,
                              const std::optional<MemoryReading>& memory, MemoryPressure pressure) {
    const std::string detail = memory ? decimal(memory->usedGigabytes(), 1) + " of " +
                                            decimal(memory->totalGigabytes(), 0) + " GB"
                                      : "unavailable";
    return "CPU " + cpuText + ", RAM " + detail + ", memory pressure " +
           std::string(title(pressure));
}

}  // namespace zephrine
