// SPDX-License-Identifier: MIT
// Lets the machine have slept, as far as this test program's clocks tell.
#pragma once

#include <ctime>

namespace zephrine::testing {

/// From now on those clocks that go on in sleep are ahead by so many seconds more. Any thread may
/// be reading clocks meanwhile.
void pretendSleep(std::time_t seconds);

}  // namespace zephrine::testing
