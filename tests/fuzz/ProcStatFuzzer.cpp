// SPDX-License-Identifier: MIT
// Any two texts in a row in the place of /proc/stat, seeds in tests/data/linux/stat: no counter
// steps back, and no usage leaves 0 to 100 percent.
#include <cstddef>
#include <cstdint>

#include "platform/Trap.h"
#include "platform/linux/counters/ProcStat.h"
#include "sampling/CPUTicks.h"

using namespace zephrine;

namespace {

CPUTicks publish(TickAccumulator& accumulator, const ProcessorTicks& ticks) {
    const HostCPULoadInfo info = accumulator.add(ticks);
    return {.user = info[CPU_STATE_USER],
            .system = info[CPU_STATE_SYSTEM],
            .idle = info[CPU_STATE_IDLE],
            .nice = info[CPU_STATE_NICE]};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const std::string_view text(data, size);
    TickAccumulator accumulator;
    CPUTicks last = publish(accumulator, {});
    for (const std::string_view part : {text.substr(0, size / 2), text.substr(size / 2), text}) {
        if (const auto ticks = parseProcessorTicks(part)) {
            const CPUTicks next = publish(accumulator, *ticks);
            trapUnless(next.idle - last.idle < std::uint32_t{1} << 31U);
            const double usage = next.usage(last).value_or(0);
            trapUnless(usage >= 0 && usage <= 100);
            last = next;
        }
        trapUnless(countProcessors(part).value_or(1) >= 1);
    }
    return 0;
}
