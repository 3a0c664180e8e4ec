// SPDX-License-Identifier: MIT
// Dark is what white text stands out from better than black text does. By the contrast ratio of
// WCAG 2 (relative luminance) the two are equal on the sRGB grey 117.3.
#include "platform/qt/statusitem/appearance/PanelPixels.h"

#include <algorithm>
#include <vector>

namespace zephrine {

namespace {

constexpr std::uint32_t kFirstLight = 118;

/// 0 to 255, in the weights of Rec. 709.
std::uint32_t luma(std::uint32_t pixel) {
    const std::uint32_t red = pixel >> 16U & 0xffU;
    const std::uint32_t green = pixel >> 8U & 0xffU;
    const std::uint32_t blue = pixel & 0xffU;
    return (red * 2126 + green * 7152 + blue * 722) / 10000;
}

}  // namespace

std::optional<Appearance> appearanceOfPixels(std::span<const std::uint32_t> pixels) {
    if (pixels.empty()) {
        return std::nullopt;
    }
    std::vector<std::uint32_t> lumas(pixels.size());
    std::transform(pixels.begin(), pixels.end(), lumas.begin(), luma);
    const auto median = lumas.begin() + static_cast<std::ptrdiff_t>(lumas.size() / 2);
    std::nth_element(lumas.begin(), median, lumas.end());
    return *median < kFirstLight ? Appearance::darkAqua : Appearance::aqua;
}

}  // namespace zephrine
