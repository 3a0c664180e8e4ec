// SPDX-License-Identifier: MIT
// What one small file tells is read on the main thread, everything else in the background.
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

std::unique_ptr<GPUSource> makeSource(const GraphicsCard& card, const GPUPlaces& places,
                                      const SecondsClock& clock, BackgroundThreads& threads) {
    const auto whileAwake = [&](auto make) {
        return std::make_unique<AwakeSource>(card, std::move(make), clock);
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
        return threads.adopt(whileAwake([=]() -> std::unique_ptr<GPUSource> {
            if (auto pmu = I915PMU::open(places.sys, card.address, places.openPerf)) {
                return pmu;
            }
            return fdinfo();
        }));
    }
    if (std::ranges::find(kFdinfoDrivers, card.driver) != kFdinfoDrivers.end()) {
        return threads.adopt(whileAwake(fdinfo));
    }
    return nullptr;
}

}  // namespace

std::vector<std::unique_ptr<GPUSource>> makeGPUSources(const std::vector<GraphicsCard>& cards,
                                                       const GPUPlaces& places,
                                                       const SecondsClock& clock,
                                                       BackgroundThreads& threads) {
    std::vector<std::unique_ptr<GPUSource>> sources;
    std::vector<GraphicsCard> nvidia;
    for (const GraphicsCard& card : cards) {
        if (card.driver == "nvidia") {
            nvidia.push_back(card);
        } else if (auto source = makeSource(card, places, clock, threads)) {
            sources.push_back(std::move(source));
        }
    }
    if (!nvidia.empty()) {
        sources.push_back(
            threads.adopt(std::make_unique<NvidiaSource>(nvidia, places.nvml, clock)));
    }
    std::erase(sources, nullptr);
    return sources;
}

}  // namespace zephrine
