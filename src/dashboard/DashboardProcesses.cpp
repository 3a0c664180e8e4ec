// SPDX-License-Identifier: MIT
// The dashboard's "Top processes": the first five of the rows that were delivered last.
#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

#include "dashboard/Dashboard.h"
#include "platform/Trap.h"
#include "processes/ProcessRanking.h"
#include "text/Decimal.h"

namespace zephrine {

namespace {

constexpr int memorySegment = 1;

std::string cpuValue(const ProcessUsage& row) {
    return row.cpu ? decimal(*row.cpu, 1) + "%" : "—";
}

std::string memoryValue(const ProcessUsage& row, const Formatting& formatting) {
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    return formatting.stringFromByteCount(static_cast<std::int64_t>(std::min(row.memory, most)));
}

}  // namespace

void Dashboard::updateProcesses(std::vector<ProcessUsage> rows) {
    processRows = std::move(rows);
    sortProcesses();
}

void Dashboard::sortProcesses() {
    mainThread_.requireCurrent();
    trapUnless(processSort != nullptr && processNames.size() >= processRowCount &&
               processValues.size() >= processRowCount);
    const bool byMemory = processSort->selectedSegment() == memorySegment;
    const auto sorted =
        ranked(processRows, byMemory ? ProcessOrder::byMemory : ProcessOrder::byCPU);

    for (std::size_t i = 0; i < processRowCount; ++i) {
        if (i < sorted.size()) {
            const ProcessUsage& row = sorted[i];
            processNames[i]->setStringValue(row.name);
            processNames[i]->setToolTip(row.name + " · PID " + std::to_string(row.pid));
            processValues[i]->setStringValue(byMemory ? memoryValue(row, formatting_)
                                                      : cpuValue(row));
        } else {
            processNames[i]->setStringValue(i == 0 ? "No readable processes" : "");
            processValues[i]->setStringValue("");
        }
    }
}

}  // namespace zephrine
