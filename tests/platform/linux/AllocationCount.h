// SPDX-License-Identifier: MIT
// Counts what this test program takes from the heap.
#pragma once

#include <cstddef>

namespace zephrine::testing {

/// Calls of `operator new` by this thread so far.
std::size_t allocationCount();

}  // namespace zephrine::testing
