// SPDX-License-Identifier: MIT
// The texts that follow the user's locale or the system's own style. Main thread only.
#pragma once

#include <cstdint>
#include <string>

namespace zephrine {

class Formatting {
public:
    virtual ~Formatting() = default;

    /// A byte count in the style for memory: multiples of 1,024 named KB, MB, GB and TB, at most
    /// three significant digits, zero as "Zero KB".
    [[nodiscard]] virtual std::string stringFromByteCount(std::int64_t bytes) const = 0;

    /// `value` in the default number format of the user's locale, without trailing zeros.
    [[nodiscard]] virtual std::string localizedNumber(double value) const = 0;
};

}  // namespace zephrine
