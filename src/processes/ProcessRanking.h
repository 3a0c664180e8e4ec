// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "processes/ProcessSnapshot.h"

namespace zephrine {

enum class ProcessOrder { byCPU, byMemory };

/// The rows from the one that uses most on; rows that use the same stay in the order in which they
/// were delivered. A share of 0 still ranks above one that is not known.
std::vector<ProcessUsage> ranked(std::vector<ProcessUsage> rows, ProcessOrder order);

}  // namespace zephrine
