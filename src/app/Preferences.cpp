// SPDX-License-Identifier: MIT
#include "app/Preferences.h"

#include "platform/Trap.h"

namespace zephrine {

double NumberOption::value() const {
    return std::visit([](auto number) { return static_cast<double>(number); }, stored);
}

std::size_t NumberPreference::index(const PreferenceStore& store) const {
    const double stored = store.doubleForKey(key);
    for (std::size_t i = 0; i < options.size(); ++i) {
        if (options[i].value() == stored) {
            return i;
        }
    }
    return defaultIndex;
}

double NumberPreference::value(const PreferenceStore& store) const {
    return options[index(store)].value();
}

void NumberPreference::choose(int index, PreferenceStore& store) const {
    trapUnless(index >= 0 && static_cast<std::size_t>(index) < options.size());
    const auto& stored = options[static_cast<std::size_t>(index)].stored;
    if (const auto* integer = std::get_if<std::int64_t>(&stored)) {
        store.setInteger(*integer, key);
    } else {
        store.setDouble(std::get<double>(stored), key);
    }
}

std::vector<std::string> NumberPreference::titles() const {
    std::vector<std::string> all;
    for (const NumberOption& option : options) {
        all.emplace_back(option.title);
    }
    return all;
}

}  // namespace zephrine
