// SPDX-License-Identifier: MIT
#include "processes/ProcessRanking.h"

#include <algorithm>

namespace zephrine {

namespace {

bool usesMoreMemory(const ProcessUsage& a, const ProcessUsage& b) {
    return a.memory > b.memory;
}

bool usesMoreCPU(const ProcessUsage& a, const ProcessUsage& b) {
    return a.cpu.value_or(-1.0) > b.cpu.value_or(-1.0);
}

}  // namespace

std::vector<ProcessUsage> ranked(std::vector<ProcessUsage> rows, ProcessOrder order) {
    std::stable_sort(rows.begin(), rows.end(),
                     order == ProcessOrder::byMemory ? usesMoreMemory : usesMoreCPU);
    return rows;
}

}  // namespace zephrine
