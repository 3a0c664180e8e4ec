// SPDX-License-Identifier: MIT
// Byte counts as people read them: 999 bytes, 12 KB, 3.5 MB, 1.25 GB, in multiples of 1,024.
#pragma once

#include <cstdint>
#include <string>

#include "platform/linux/formatting/NumberSymbols.h"

namespace zephrine {

/// At most three significant digits: KB are whole, MB have up to one decimal, GB and above up to
/// two, trailing zeros dropped. Digits before the decimal sign are never rounded away: 1,023 KB
/// stands as it is. 0 is "Zero KB".
std::string byteCountText(std::int64_t bytes, const NumberSymbols& symbols);

}  // namespace zephrine
