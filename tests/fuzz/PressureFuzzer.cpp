// SPDX-License-Identifier: MIT
// Any two texts in a row in the place of /proc/pressure/memory, seeds in tests/data/linux/pressure:
// the level stays one of three.
#include <cstddef>
#include <cstdint>

#include "platform/Trap.h"
#include "platform/linux/counters/PressureLevel.h"

using namespace zephrine;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const std::string_view text(data, size);
    Meminfo memory;
    memory.memTotal = 100;
    memory.memAvailable = 20;
    PressureLevel level;
    double now = 0;
    for (const std::string_view part : {text.substr(0, size / 2), text.substr(size / 2), text}) {
        const auto value = level.update(memory, parsePressure(part), now);
        trapUnless(value && (*value == 1 || *value == 2 || *value == 4));
        now += 2;
    }
    return 0;
}
