// SPDX-License-Identifier: MIT
// Lines of "key:<blank>value [unit]". For each engine either drm-engine-NAME, nanoseconds, or
// drm-cycles-NAME with drm-total-cycles-NAME beside it; cycles alone tell nothing.
#include "platform/linux/gpu/Fdinfo.h"

#include <algorithm>

#include "platform/linux/base/TextScan.h"

namespace zephrine {

namespace {

struct Engine {
    std::string_view name;
    std::optional<std::uint64_t> nanoseconds;
    std::optional<std::uint64_t> cycles;
    std::optional<std::uint64_t> totalCycles;
    std::uint64_t capacity = 1;
};

Engine& engineCalled(std::string_view name, std::vector<Engine>& engines) {
    const auto found = std::ranges::find(engines, name, &Engine::name);
    if (found != engines.end()) {
        return *found;
    }
    Engine& engine = engines.emplace_back();
    engine.name = name;
    return engine;
}

/// True when `key` begins with `prefix`, which is then taken off.
bool takePrefix(std::string_view& key, std::string_view prefix) {
    if (!key.starts_with(prefix)) {
        return false;
    }
    key.remove_prefix(prefix.size());
    return true;
}

void takeEngineLine(std::string_view key, std::uint64_t value, std::vector<Engine>& engines) {
    if (takePrefix(key, "drm-engine-capacity-")) {
        engineCalled(key, engines).capacity = std::max<std::uint64_t>(value, 1);
    } else if (takePrefix(key, "drm-engine-")) {
        engineCalled(key, engines).nanoseconds = value;
    } else if (takePrefix(key, "drm-cycles-")) {
        engineCalled(key, engines).cycles = value;
    } else if (takePrefix(key, "drm-total-cycles-")) {
        engineCalled(key, engines).totalCycles = value;
    }
}

}  // namespace

std::optional<ClientUsage> parseFdinfo(std::string_view text, std::uint64_t nanoseconds) {
    ClientUsage client;
    std::vector<Engine> engines;
    while (auto line = takeLine(text)) {
        const std::size_t colon = line->find(':');
        if (colon == std::string_view::npos) {
            continue;
        }
        const std::string_view key = line->substr(0, colon);
        line->remove_prefix(colon + 1);
        const std::string_view value = takeWord(*line);
        if (key == "drm-client-id") {
            client.id = value;
        } else if (key == "drm-pdev") {
            client.device = value;
        } else if (const auto number = parseUnsigned(value)) {
            takeEngineLine(key, *number, engines);
        }
    }
    if (client.id.empty()) {
        return std::nullopt;
    }
    for (const Engine& engine : engines) {
        if (engine.nanoseconds) {
            client.engines.push_back(
                {engine.name, *engine.nanoseconds, nanoseconds, engine.capacity});
        } else if (engine.cycles && engine.totalCycles) {
            client.engines.push_back(
                {engine.name, *engine.cycles, *engine.totalCycles, engine.capacity});
        }
    }
    return client;
}

}  // namespace zephrine
