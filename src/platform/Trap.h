// SPDX-License-Identifier: MIT
// The hard stop for states that correct code cannot reach. It ends the process without a word:
// whoever supervises it sees the abnormal end, and no user is shown a message about a bug.
#pragma once

#include <cstdlib>

namespace zephrine {

[[noreturn]] inline void trap() noexcept {
    std::abort();
}

/// Ends the process unless `condition` holds.
inline void trapUnless(bool condition) noexcept {
    if (!condition) {
        trap();
    }
}

}  // namespace zephrine
