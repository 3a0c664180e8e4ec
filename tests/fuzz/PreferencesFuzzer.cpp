// SPDX-License-Identifier: MIT
// Any text in the place of the preference file, seeds in tests/data/linux/preferences: what is
// taken for a document comes back the same after it was written.
#include <cstddef>
#include <cstdint>

#include "platform/Trap.h"
#include "platform/linux/preferences/PreferenceDocument.h"

using namespace zephrine;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const auto document = parsePreferences({data, size});
    if (!document) {
        return 0;
    }
    const std::string text = preferenceText(*document);
    if (text.size() <= kLargestPreferenceFile) {
        const auto again = parsePreferences(text);
        trapUnless(again && *again == *document && preferenceText(*again) == text);
    }
    return 0;
}
