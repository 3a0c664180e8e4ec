// SPDX-License-Identifier: MIT
// An open library keeps a card from falling asleep however it is used, so an idle card is let go
// whatever its power settings say: unlike with the other makers, they do not tell all (a card that
// the kernel keeps on can still rest when its last user has gone).
#include "platform/linux/gpu/NvidiaSource.h"

#include <algorithm>
#include <utility>

namespace zephrine {

NvidiaSource::NvidiaSource(const std::vector<GraphicsCard>& cards, std::string library,
                           SecondsClock clock)
    : library_(std::move(library)), clock_(std::move(clock)) {
    cards_.reserve(cards.size());
    for (const GraphicsCard& card : cards) {
        cards_.push_back({.address = card.address, .power = GPUPower(card), .idle = IdleCount()});
    }
}

std::optional<double> NvidiaSource::utilization() {
    if (!allAwake()) {
        nvml_.reset();
        return std::nullopt;
    }
    const double now = clock_();
    if (now < restEnd_) {
        return std::nullopt;
    }
    if (nvml_) {
        return readAll(now);
    }
    nvml_ = NVML::start(library_);
    if (nvml_) {
        readAll(now);
    } else {
        rest(now);
    }
    return std::nullopt;
}

bool NvidiaSource::allAwake() {
    return std::ranges::all_of(cards_, [](Card& card) { return card.power.isAwake(); });
}

std::optional<double> NvidiaSource::readAll(double now) {
    std::optional<double> busiest;
    bool idle = false;
    for (Card& card : cards_) {
        const auto percent = nvml_->utilization(card.address);
        // A card that tells nothing is no reason to keep the library open.
        idle = (card.idle.reaches(percent.value_or(0)) && !drivesDisplay(card)) || idle;
        busiest = std::max(busiest, percent);
    }
    if (idle) {
        rest(now);
    }
    return busiest;
}

bool NvidiaSource::drivesDisplay(const Card& card) const {
    // Without the driver's mode setting the kernel knows of no screens, but the library does.
    return card.power.drivesDisplay() || nvml_->drivesDisplay(card.address);
}

void NvidiaSource::rest(double now) {
    constexpr double kSeconds = 20;  // falling asleep takes such a card some 6 s
    nvml_.reset();
    restEnd_ = now + kSeconds;
}

}  // namespace zephrine
