// SPDX-License-Identifier: MIT
// The guard of what belongs to the main thread. The core has no locks: an operation that came from
// another thread would corrupt what the next refresh shows, so it stops the program at once.
#pragma once

#include <thread>

#include "platform/Trap.h"

namespace zephrine {

/// Remembers the thread that makes it. Make one where only the main thread comes by; copies keep
/// what the original remembers.
class MainThread {
public:
    /// Ends the process on any other thread than the remembered one.
    void requireCurrent() const noexcept { trapUnless(std::this_thread::get_id() == id_); }

private:
    std::thread::id id_ = std::this_thread::get_id();
};

}  // namespace zephrine
