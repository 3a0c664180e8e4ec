// SPDX-License-Identifier: MIT
// The small services: preferences in memory, a login item and plain formatting.
#pragma once

#include <map>
#include <string>
#include <variant>

#include "platform/Formatting.h"
#include "platform/LoginItem.h"
#include "platform/PreferenceStore.h"

namespace zephrine {

class FakePreferenceStore : public PreferenceStore {
public:
    using Value = std::variant<bool, std::int64_t, double>;
    std::map<std::string, Value, std::less<>> values;  ///< in the form in which they were stored
    mutable int reads = 0;

    [[nodiscard]] double doubleForKey(std::string_view key) const override {
        ++reads;
        const auto entry = values.find(key);
        return entry == values.end()
                   ? 0
                   : std::visit([](auto value) { return static_cast<double>(value); },
                                entry->second);
    }
    [[nodiscard]] bool boolForKey(std::string_view key) const override {
        return doubleForKey(key) != 0;
    }
    void setDouble(double value, std::string_view key) override {
        values.insert_or_assign(std::string(key), value);
    }
    void setInteger(std::int64_t value, std::string_view key) override {
        values.insert_or_assign(std::string(key), value);
    }
    void setBool(bool value, std::string_view key) override {
        values.insert_or_assign(std::string(key), value);
    }
};

class FakeLoginItem : public LoginItem {
public:
    LoginItemStatus current = LoginItemStatus::notRegistered;
    LoginItemStatus afterRegistering = LoginItemStatus::enabled;
    std::optional<std::string> error;  ///< what the next changes fail with
    int registrations = 0;
    int unregistrations = 0;

    [[nodiscard]] LoginItemStatus status() const override { return current; }
    std::optional<std::string> registerItem() override {
        ++registrations;
        if (!error) {
            current = afterRegistering;
        }
        return error;
    }
    std::optional<std::string> unregisterItem() override {
        ++unregistrations;
        if (!error) {
            current = LoginItemStatus::notRegistered;
        }
        return error;
    }
};

class FakeFormatting : public Formatting {
public:
    [[nodiscard]] std::string stringFromByteCount(std::int64_t bytes) const override {
        return std::to_string(bytes) + " bytes";
    }
    [[nodiscard]] std::string localizedNumber(double value) const override {
        return value == 0.5 ? "0,5" : std::to_string(static_cast<int>(value));
    }
};

}  // namespace zephrine
