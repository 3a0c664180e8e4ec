// SPDX-License-Identifier: MIT
// Any text in the place of /proc/meminfo, seeds in tests/data/linux/meminfo: whatever it says, the
// used memory that comes out is the total less the available, and the level is one of three.
#include <cstddef>
#include <cstdint>

#include "platform/Trap.h"
#include "platform/linux/counters/PressureLevel.h"
#include "platform/linux/counters/VMStatistics.h"
#include "sampling/MemoryReading.h"

using namespace zephrine;

namespace {

constexpr std::uint64_t kPageSize = 4096;
/// Up to here no page count reaches the end of its 32 bits.
constexpr std::uint64_t kLargestExact = std::uint64_t{1} << 42U;

void checkUsed(const Meminfo& memory) {
    const auto statistics = vmStatistics(memory, {}, kPageSize);
    const auto available = availableMemory(memory);
    trapUnless(statistics.has_value() == available.has_value());
    if (!statistics) {
        return;
    }
    const std::uint64_t total = memory.memTotal.value_or(0);
    trapUnless(*available <= total);
    const std::uint64_t used = MemoryReading::usedBytes(*statistics, kPageSize, total);
    trapUnless(used <= total);
    trapUnless(total > kLargestExact || used == (total - *available) / kPageSize * kPageSize);
}

void checkLevel(const Meminfo& memory) {
    const auto level = PressureLevel().update(memory, std::nullopt, 0);
    trapUnless(!level || *level == 1 || *level == 2 || *level == 4);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const Meminfo memory = parseMeminfo({data, size});
    checkUsed(memory);
    checkLevel(memory);
    return 0;
}
