// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/formatting/LinuxFormatting.h"

#include <utility>

#include "platform/linux/formatting/ByteCount.h"

namespace zephrine {

LinuxFormatting::LinuxFormatting(NumberSymbols symbols) : symbols_(std::move(symbols)) {}

std::string LinuxFormatting::stringFromByteCount(std::int64_t bytes) const {
    return byteCountText(bytes, symbols_);
}

std::string LinuxFormatting::localizedNumber(double value) const {
    constexpr int kMostDecimals = 3;  // as default number formats have it
    return localizedText(value, kMostDecimals, symbols_);
}

}  // namespace zephrine
