// SPDX-License-Identifier: MIT
// Any bytes in the place of what a desktop's settings manager tells, seeds in
// tests/data/linux/xsettings.
#include <cstddef>
#include <cstdint>

#include "platform/Trap.h"
#include "platform/linux/desktop/XSettings.h"

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const auto settings = zephrine::parseXSettings({data, size});
    // A setting takes at least twelve bytes, and nothing of it comes from elsewhere.
    zephrine::trapUnless(settings.size() * 12 <= size);
    return 0;
}
