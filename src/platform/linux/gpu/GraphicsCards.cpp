// SPDX-License-Identifier: MIT
// Reads names and links only, neither of which wakes a card.
#include "platform/linux/gpu/GraphicsCards.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

namespace zephrine {
namespace fs = std::filesystem;

namespace {

/// The last part of what the link at `path` leads to; empty when there is no link.
std::string linkedName(const fs::path& path) {
    std::error_code noLink;
    return fs::read_symlink(path, noLink).filename().string();
}

/// Machines that only compute have NVIDIA's driver without the part that registers DRM cards.
void addCardlessNvidia(const std::string& sys, std::vector<GraphicsCard>& cards) {
    std::map<std::string, GraphicsCard> found;
    std::error_code error;
    fs::directory_iterator entry(sys + "/bus/pci/drivers/nvidia", error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string address = entry->path().filename().string();
        const bool isDevice = address.find(':') != std::string::npos;
        if (isDevice && std::ranges::find(cards, address, &GraphicsCard::address) == cards.end()) {
            found[address] = {.path = "",
                              .device = entry->path().string(),
                              .driver = "nvidia",
                              .address = address};
        }
    }
    for (auto& [address, card] : found) {
        cards.push_back(std::move(card));
    }
}

}  // namespace

std::optional<unsigned> cardNumber(std::string_view name) {
    constexpr std::string_view kPrefix = "card";
    if (!name.starts_with(kPrefix)) {
        return std::nullopt;
    }
    name.remove_prefix(kPrefix.size());
    unsigned number = 0;
    const char* const end = name.data() + name.size();
    const auto [rest, error] = std::from_chars(name.data(), end, number);
    if (error != std::errc() || rest != end) {
        return std::nullopt;
    }
    return number;
}

std::optional<std::vector<GraphicsCard>> findGraphicsCards(const std::string& sys) {
    std::error_code error;
    std::map<unsigned, GraphicsCard> found;
    fs::directory_iterator entry(sys + "/class/drm", error);
    const bool noGraphics = error == std::errc::no_such_file_or_directory;  // in this kernel
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (const auto number = cardNumber(entry->path().filename().string())) {
            const fs::path device = entry->path() / "device";
            found[*number] = {.path = entry->path().string(),
                              .device = device.string(),
                              .driver = linkedName(device / "driver"),
                              .address = linkedName(device)};
        }
    }
    if (error && !noGraphics) {
        return std::nullopt;
    }
    std::vector<GraphicsCard> cards;
    cards.reserve(found.size());
    for (auto& [number, card] : found) {
        cards.push_back(std::move(card));
    }
    addCardlessNvidia(sys, cards);
    return cards;
}

}  // namespace zephrine
