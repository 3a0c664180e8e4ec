// SPDX-License-Identifier: MIT
// Any text in the place of the autostart entry, seeds in tests/data/linux/autostart: the status is
// one of those that an entry can have, and only programs that it names are looked for.
#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/Trap.h"
#include "platform/linux/login/AutostartStatus.h"
#include "platform/linux/login/DesktopExec.h"

using namespace zephrine;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const std::string_view text(data, size);
    programOfExec(std::string(text));
    const auto entry = DesktopEntry::parse(text);
    if (!entry) {
        return 0;
    }
    bool looked = false;
    const auto exists = [&looked](std::string_view program) {
        looked = true;
        return program.size() % 2 == 0;
    };
    for (const char* const desktop : {"", "GNOME", "ubuntu:GNOME", ":::"}) {
        const LoginItemStatus status = autostartStatus(*entry, desktop, exists);
        require(status != LoginItemStatus::notRegistered);
        require(status != LoginItemStatus::enabled || looked);
        require(status != LoginItemStatus::enabled || entry->boolean("Hidden") != true);
    }
    return 0;
}
