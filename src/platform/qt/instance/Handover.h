// SPDX-License-Identifier: MIT
// What passes between a start of the program and the instance that runs already.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include "platform/LaunchOptions.h"

namespace zephrine {

/// What a start was given, in order; nothing asks the running program to come forward.
using HandedOptions = std::vector<LaunchOption>;

/// Called in the running program with one option, or with none to come forward. It must not wait:
/// the other side does, for the answer.
using HandoverReceiver = std::function<void(std::optional<LaunchOption> option)>;

enum class Handover {
    nobody,  ///< no other instance runs
    done,    ///< the other instance has taken it over
    silent,  ///< somebody stands in its place, but does not answer as it does, or not in time
};

/// How long a running instance may take to answer.
constexpr std::chrono::milliseconds handoverPatience{3000};

}  // namespace zephrine
