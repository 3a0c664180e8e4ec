// SPDX-License-Identifier: MIT
// Brings the descriptors, the parser and the arithmetic together.
#include "platform/linux/gpu/FdinfoSource.h"

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace zephrine {
namespace fs = std::filesystem;

namespace {

/// The device files that lead to `card`: "/dev/dri/card0", "/dev/dri/renderD128".
std::vector<std::string> deviceFiles(const GraphicsCard& card) {
    const std::string folder = "/dev/dri/";
    std::vector<std::string> files{folder + fs::path(card.path).filename().string()};
    std::error_code error;
    fs::directory_iterator entry(card.device + "/drm", error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with("renderD")) {
            files.push_back(folder + name);
        }
    }
    return files;
}

}  // namespace

FdinfoSource::FdinfoSource(const std::string& proc, const GraphicsCard& card, SecondsClock clock)
    : address_(card.address), clock_(std::move(clock)), files_(proc, deviceFiles(card)) {}

std::optional<double> FdinfoSource::utilization() {
    files_.forEach([this](std::string_view fdinfo) {
        const auto client = parseFdinfo(fdinfo, static_cast<std::uint64_t>(clock_() * 1e9));
        if (client && (client->device.empty() || client->device == address_)) {
            load_.add(*client);
        }
    });
    return load_.finishPass();
}

}  // namespace zephrine
