// SPDX-License-Identifier: MIT
// How busy one graphics card is, by its driver's own account. Each driver has its own small class.
#pragma once

#include <functional>
#include <memory>
#include <optional>

namespace zephrine {

class GPUSource {
public:
    virtual ~GPUSource() = default;

    /// Percent; absent when it cannot be read now. A source that counts busy time has its first
    /// figure at the second call. Called by one thread at a time, not always the main one.
    virtual std::optional<double> utilization() = 0;
};

/// Opens a source, never null; by the thread that then reads it. May be called again, by another
/// thread, once that one is stuck.
using GPUSourceMaker = std::function<std::unique_ptr<GPUSource>()>;

}  // namespace zephrine
