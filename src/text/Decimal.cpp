// SPDX-License-Identifier: MIT
#include "text/Decimal.h"

#include <iomanip>
#include <locale>
#include <sstream>

namespace zephrine {

std::string decimal(double value, int decimals, int width) {
    // std::to_chars would be leaner, but for floating-point numbers the C++ library of macOS has
    // it only since 13.3.
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::fixed << std::setprecision(decimals) << std::setw(width) << value;
    return stream.str();
}

}  // namespace zephrine
