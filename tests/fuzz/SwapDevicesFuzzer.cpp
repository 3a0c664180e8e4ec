// SPDX-License-Identifier: MIT
// Any text in the place of /proc/swaps or of a zram device's mm_stat, seeds in tests/data/linux/
// swaps and mm_stat: the walk over the devices ends.
#include <cstddef>
#include <cstdint>

#include "platform/Trap.h"
#include "platform/linux/counters/SwapDevices.h"

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    std::string_view swaps(data, size);
    std::size_t left = swaps.size();
    while (zephrine::takeZramDevice(swaps)) {
        zephrine::trapUnless(swaps.size() < left);
        left = swaps.size();
    }
    zephrine::parseZramMemoryUsed({data, size});
    return 0;
}
