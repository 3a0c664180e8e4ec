// SPDX-License-Identifier: MIT
// Numbers as text, alike in every locale. The C library's formatting follows LC_NUMERIC, which
// toolkits set behind a program's back; the texts built here always have a decimal point.
#pragma once

#include <string>

namespace zephrine {

/// `value` as "%<width>.<decimals>f" writes it in the C locale.
std::string decimal(double value, int decimals, int width = 0);

}  // namespace zephrine
