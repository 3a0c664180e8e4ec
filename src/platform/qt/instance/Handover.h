// SPDX-License-Identifier: MIT
// What passes between a start of the program and the instance that runs already.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

namespace zephrine {

/// Those of `launchOptions` that a start was given, in their order; none asks the running program
/// to come forward.
using HandedOptions = std::vector<std::string_view>;

/// Called in the running program with one of `launchOptions`, or with nothing to come forward. It
/// must not wait: the other side does, for the answer.
using HandoverReceiver = std::function<void(std::string_view option)>;

enum class Handover {
    nobody,  ///< no other instance runs
    done,    ///< the other instance has taken it over
    silent,  ///< somebody stands in its place, but does not answer as it does, or not in time
};

/// How long a running instance may take to answer; milliseconds.
constexpr int handoverPatience = 3000;

}  // namespace zephrine
