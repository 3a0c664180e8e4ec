// SPDX-License-Identifier: MIT
// Light or dark, told from some pixels of a surface.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/Color.h"

namespace zephrine {

/// `pixels` are 0xRRGGBB, the uppermost byte of each is not looked at. Goes by the median, so that
/// texts and icons on the surface do not count while they cover less than half. Absent for none.
[[nodiscard]] std::optional<Appearance> appearanceOfPixels(std::span<const std::uint32_t> pixels);

}  // namespace zephrine
