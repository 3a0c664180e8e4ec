// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/gpu/GPUSources.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "platform/linux/gpu/AmdgpuSource.h"
#include "platform/linux/gpu/AwakeSource.h"
#include "platform/linux/gpu/FdinfoSource.h"
#include "platform/linux/gpu/I915PMU.h"
#include "platform/linux/gpu/NvidiaSource.h"
#include "platform/linux/gpu/V3DSource.h"

namespace zephrine {

namespace {

/// Drivers that count each client's work, as their devices call them.
constexpr std::array<std::string_view, 9> kFdinfoDrivers{
    "xe",                                     // Intel
    "panfrost", "panthor", "lima",            // Arm
    "msm_dpu",  "msm_mdp", "mdp4", "adreno",  // Qualcomm: all of them the msm driver
    "etnaviv",                                // Vivante
};

/// Empty for a driver that tells nothing.
GPUSourceMaker findSource(const GraphicsCard& card, const GPUPlaces& places,
                          const SecondsClock& clock) {
    const auto whileAwake = [&](auto make) -> GPUSourceMaker {
        return [card, clock, make = std::move(make)] {
            return std::make_unique<AwakeSource>(card, make, clock);
        };
    };
    const auto fdinfo = [card, clock, proc = places.proc] {
        return std::make_unique<FdinfoSource>(proc, card, clock);
    };
    if (card.driver == "amdgpu") {
        return whileAwake([card] { return std::make_unique<AmdgpuSource>(card.device); });
    }
    if (card.driver == "v3d") {
        return whileAwake([card] { return std::make_unique<V3DSource>(card.device); });
    }
    if (card.driver == "i915") {
        return whileAwake([=]() -> std::unique_ptr<GPUSource> {
            if (auto pmu = I915PMU::open(places.sys, card.address, places.openPerf)) {
                return pmu;
            }
            return fdinfo();
        });
    }
    if (std::ranges::find(kFdinfoDrivers, card.driver) != kFdinfoDrivers.end()) {
        return whileAwake(fdinfo);
    }
    return {};
}

}  // namespace

std::vector<GPUSourceMaker> findGPUSources(const std::vector<GraphicsCard>& cards,
                                           const GPUPlaces& places, const SecondsClock& clock) {
    std::vector<GPUSourceMaker> sources;
    std::vector<GraphicsCard> nvidia;
    for (const GraphicsCard& card : cards) {
        if (card.driver == "nvidia") {
            nvidia.push_back(card);
        } else if (auto source = findSource(card, places, clock)) {
            sources.push_back(std::move(source));
        }
    }
    if (!nvidia.empty()) {
        sources.emplace_back([nvidia, library = places.nvml, clock] {
            return std::make_unique<NvidiaSource>(nvidia, library, clock);
        });
    }
    return sources;
}

}  // namespace zephrine
