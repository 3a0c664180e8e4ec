// SPDX-License-Identifier: MIT
// Waiting in a test for what another thread is about to do.
#pragma once

#include <chrono>
#include <thread>

namespace zephrine::testing {

/// Calls `attempt` until its result counts as true, and returns that; gives up after a while that
/// only a broken program needs.
template <typename Attempt>
auto eventually(Attempt attempt) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    auto result = attempt();
    while (!result && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        result = attempt();
    }
    return result;
}

}  // namespace zephrine::testing
