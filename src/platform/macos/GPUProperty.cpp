// SPDX-License-Identifier: MIT
#include "platform/macos/GPUProperty.h"

#include <utility>

namespace zephrine {

std::optional<PropertyDictionary> propertyDictionary(std::vector<PropertyEntry> entries) {
    PropertyDictionary dictionary;
    for (PropertyEntry& entry : entries) {
        if (!entry.key) {
            return std::nullopt;
        }
        if (entry.value) {
            dictionary.insert_or_assign(std::move(*entry.key), std::move(*entry.value));
        }
    }
    return dictionary;
}

}  // namespace zephrine
