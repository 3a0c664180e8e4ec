// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/preferences/JSONPreferenceStore.h"

#include <utility>

#include "platform/linux/base/ConfigHome.h"

namespace zephrine {

std::string defaultPreferencePath() {
    const std::string folder = configHome();
    return folder.empty() ? folder : folder + "/zephrine/preferences.json";
}

JSONPreferenceStore::JSONPreferenceStore(std::string path) : file_(std::move(path)) {}

double JSONPreferenceStore::doubleForKey(std::string_view key) const {
    return file_.number(key).value_or(0);
}

bool JSONPreferenceStore::boolForKey(std::string_view key) const {
    return file_.boolean(key).value_or(file_.number(key).value_or(0) != 0);
}

void JSONPreferenceStore::setDouble(double value, std::string_view key) {
    file_.setNumber(value, key);
}

void JSONPreferenceStore::setInteger(std::int64_t value, std::string_view key) {
    file_.setInteger(value, key);
}

void JSONPreferenceStore::setBool(bool value, std::string_view key) {
    file_.setBoolean(value, key);
}

}  // namespace zephrine
