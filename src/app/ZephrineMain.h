// SPDX-License-Identifier: MIT
// The entry point: decides from the command line alone what the process does.
#pragma once

#include <string>
#include <vector>

#include "platform/Platform.h"

namespace zephrine {

struct ZephrineMain {
    /// Runs the self-test, prints the launch-at-login status, or runs the application until it
    /// terminates. `arguments` include the program's own path; options match as whole strings, and
    /// unknown ones are ignored. Returns the exit status: 1 when there is no desktop to show the
    /// item on, else 0, also when the program runs already. A failing self-test does not return.
    static int main(Platform& platform, const std::vector<std::string>& arguments);
};

}  // namespace zephrine
