// SPDX-License-Identifier: MIT
// The user's preferences: a few numbers and flags under string keys, kept across launches.
//
// Contract. Main thread only. Reading never writes and never fails: a key that is missing, or that
// holds something else than was asked for, reads as 0 or false. A number reads alike whether it is
// stored as an integer or as a floating-point number, but each is stored in the form in which it
// was set. A value that was set is what every later read sees; a value changed from outside while
// the program runs is seen as well.
#pragma once

#include <cstdint>
#include <string_view>

namespace zephrine {

class PreferenceStore {
public:
    virtual ~PreferenceStore() = default;

    [[nodiscard]] virtual double doubleForKey(std::string_view key) const = 0;
    /// A number reads as true when it is not 0.
    [[nodiscard]] virtual bool boolForKey(std::string_view key) const = 0;

    virtual void setDouble(double value, std::string_view key) = 0;
    virtual void setInteger(std::int64_t value, std::string_view key) = 0;
    virtual void setBool(bool value, std::string_view key) = 0;
};

}  // namespace zephrine
