// SPDX-License-Identifier: MIT
// Writes one refresh's readings into the dashboard.
#include "dashboard/Dashboard.h"
#include "text/Decimal.h"

namespace zephrine {

namespace {

std::string percentText(std::optional<double> percent) {
    return percent ? decimal(*percent, 0) + "%" : "—";
}

std::string memoryDetail(const std::optional<MemoryReading>& memory) {
    return memory ? decimal(memory->usedGigabytes(), 1) + " / " +
                        decimal(memory->totalGigabytes(), 0) + " GB"
                  : "Unavailable";
}

}  // namespace

void Dashboard::update(std::optional<double> cpuPercent, const std::optional<MemoryReading>& memory,
                       std::optional<double> gpuPercent, MemoryPressure level,
                       const History& readings, double interval) {
    mainThread_.requireCurrent();
    cpu->setStringValue(percentText(cpuPercent));
    ram->setStringValue(percentText(percentOf(memory)));
    gpu->setStringValue(percentText(gpuPercent));
    gpuDetail->setStringValue(gpuPercent ? "Driver-reported usage"
                                         : std::string(words_.unavailable));
    ramDetail->setStringValue(memoryDetail(memory));

    pressure->setStringValue("●  Memory pressure: " + std::string(title(level)));
    pressure->setTextColor(color(level));

    history.setSamples(readings.samples);
    // Spoken from what the labels now show, so that ears and eyes always get the same figures.
    history.canvas().setAccessibilityValue(
        "CPU " + cpu->stringValue() + ", RAM " + ram->stringValue() + ", GPU " +
        gpu->stringValue() + ". " + std::to_string(readings.samples.size()) + " recent samples.");

    cadence->setStringValue("Updates every " + formatting_.localizedNumber(interval) +
                            "s · Everything stays on your " + std::string(words_.machine));
}

}  // namespace zephrine
