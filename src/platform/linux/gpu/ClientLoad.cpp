// SPDX-License-Identifier: MIT
// Every client is measured over its own stretch of time, so that it does not matter at which moment
// of a pass its file was read.
#include "platform/linux/gpu/ClientLoad.h"

#include <algorithm>
#include <utility>

namespace zephrine {

void ClientLoad::add(const ClientUsage& usage) {
    Client& client = clients_[std::string(usage.id)];
    if (std::exchange(client.pass, pass_) == pass_) {
        return;
    }
    for (const EngineUsage& engine : usage.engines) {
        const std::string name(engine.name);
        if (const auto percent = client.engines[name].next(engine.busy, engine.total)) {
            percents_[name] += *percent / static_cast<double>(engine.capacity);
        }
    }
}

std::optional<double> ClientLoad::finishPass() {
    std::erase_if(clients_, [this](const auto& client) { return client.second.pass != pass_; });
    ++pass_;
    std::optional<double> busiest;
    for (const auto& [name, percent] : std::exchange(percents_, {})) {
        busiest = std::max(busiest.value_or(0), percent);
    }
    return busiest ? plausiblePercent(*busiest) : std::nullopt;
}

}  // namespace zephrine
