// SPDX-License-Identifier: MIT
// Any text in the place of what a process's open graphics device tells, seeds in
// tests/data/linux/fdinfo; and any two such texts as one client's figures in turn.
#include <cstddef>
#include <cstdint>

#include "platform/Trap.h"
#include "platform/linux/gpu/ClientLoad.h"
#include "platform/linux/gpu/Fdinfo.h"

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    using zephrine::require;
    const std::string_view text(data, size);
    const std::size_t half = size / 2;
    zephrine::ClientLoad load;
    std::uint64_t clock = 0;
    for (const std::string_view part : {text.substr(0, half), text.substr(half)}) {
        const auto client = zephrine::parseFdinfo(part, clock += 1'000'000'000);
        if (client) {
            trapUnless(!client->id.empty());
            for (const auto& engine : client->engines) {
                trapUnless(engine.capacity >= 1);
            }
            load.add(*client);
        }
        const double percent = load.finishPass().value_or(0);
        trapUnless(percent >= 0 && percent <= 100);
    }
    return 0;
}
