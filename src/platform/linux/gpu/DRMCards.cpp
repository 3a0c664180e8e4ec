// SPDX-License-Identifier: MIT
// Reads names and links only, neither of which wakes a card.
#include "platform/linux/gpu/DRMCards.h"

#include <charconv>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

namespace zephrine {
namespace fs = std::filesystem;

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

std::optional<std::vector<DRMCard>> findDRMCards(const std::string& sys) {
    std::error_code error;
    fs::directory_iterator entry(sys + "/class/drm", error);
    if (error == std::errc::no_such_file_or_directory) {
        return std::vector<DRMCard>();  // a kernel without graphics
    }
    std::map<unsigned, DRMCard> found;
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const auto number = cardNumber(entry->path().filename().string());
        if (!number) {
            continue;
        }
        std::error_code noDriver;
        const fs::path driver = fs::read_symlink(entry->path() / "device/driver", noDriver);
        found[*number] = {entry->path().string(), driver.filename().string()};
    }
    if (error) {
        return std::nullopt;
    }
    std::vector<DRMCard> cards;
    cards.reserve(found.size());
    for (auto& [number, card] : found) {
        cards.push_back(std::move(card));
    }
    return cards;
}

}  // namespace zephrine
