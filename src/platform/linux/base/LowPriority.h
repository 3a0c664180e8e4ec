// SPDX-License-Identifier: MIT
// Threads that never delay what the user does.
#pragma once

namespace zephrine {

/// Lowers the calling thread's priority, where the system lets it, and leaves all signals to the
/// others. `name` has at most 15 bytes.
void becomeLowPriorityThread(const char* name);

}  // namespace zephrine
