// SPDX-License-Identifier: MIT
#include "sampling/History.h"

#include <cstddef>

namespace zephrine {

namespace {
constexpr std::size_t maximumCount = 601;
}

void History::append(const HistorySample& sample) {
    samples.reserve(maximumCount + 1);
    samples.push_back(sample);
    const double cutoff = sample.time - historySeconds;
    std::erase_if(samples, [cutoff](const HistorySample& kept) { return kept.time < cutoff; });
    if (samples.size() > maximumCount) {
        const auto excess = static_cast<std::ptrdiff_t>(samples.size() - maximumCount);
        samples.erase(samples.begin(), samples.begin() + excess);
    }
}

}  // namespace zephrine
