// SPDX-License-Identifier: MIT
// Any text in the place of ZFS's cache statistics, seeds in tests/data/linux/arcstats.
#include <cstddef>
#include <cstdint>

#include "platform/Trap.h"
#include "platform/linux/counters/ArcStats.h"

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const std::string_view text(data, size);
    const auto reclaimable = zephrine::parseReclaimableArc(text);
    zephrine::trapUnless(!reclaimable || text.find("size") != std::string_view::npos);
    return 0;
}
