// SPDX-License-Identifier: MIT
// The small services: preferences in memory, a login item and plain formatting.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <variant>

#include "fakes/CallLog.h"
#include "platform/Formatting.h"
#include "platform/LoginItem.h"
#include "platform/PreferenceStore.h"

namespace zephrine {

class FakePreferenceStore : public PreferenceStore {
public:
    explicit FakePreferenceStore(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    using Value = std::variant<bool, std::int64_t, double>;
    std::map<std::string, Value, std::less<>> values;  ///< in the form in which they were stored

    [[nodiscard]] double doubleForKey(std::string_view key) const override {
        note("doubleForKey", key);
        return number(key);
    }
    [[nodiscard]] bool boolForKey(std::string_view key) const override {
        note("boolForKey", key);
        return number(key) != 0;
    }
    void setDouble(double value, std::string_view key) override {
        note("setDouble", key);
        values.insert_or_assign(std::string(key), value);
    }
    void setInteger(std::int64_t value, std::string_view key) override {
        note("setInteger", key);
        values.insert_or_assign(std::string(key), value);
    }
    void setBool(bool value, std::string_view key) override {
        note("setBool", key);
        values.insert_or_assign(std::string(key), value);
    }

private:
    void note(const std::string& operation, std::string_view key) const {
        calls.note(operation + " " + std::string(key));
    }
    [[nodiscard]] double number(std::string_view key) const {
        const auto entry = values.find(key);
        return entry == values.end()
                   ? 0
                   : std::visit([](auto value) { return static_cast<double>(value); },
                                entry->second);
    }
};

class FakeLoginItem : public LoginItem {
public:
    explicit FakeLoginItem(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    LoginItemStatus current = LoginItemStatus::notRegistered;
    LoginItemStatus afterRegistering = LoginItemStatus::enabled;
    std::optional<std::string> error;  ///< what the next changes fail with
    int registrations = 0;
    int unregistrations = 0;

    [[nodiscard]] LoginItemStatus status() const override {
        calls.note("status");
        return current;
    }
    std::optional<std::string> registerItem() override {
        calls.note("registerItem");
        ++registrations;
        if (!error) {
            current = afterRegistering;
        }
        return error;
    }
    std::optional<std::string> unregisterItem() override {
        calls.note("unregisterItem");
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
