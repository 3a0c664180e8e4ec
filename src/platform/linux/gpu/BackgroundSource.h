// SPDX-License-Identifier: MIT
// A source that may take its time, or never come back from its driver, on a thread of its own: the
// main thread takes the latest figure and asks for the next one, and never waits.
#pragma once

#include <memory>
#include <thread>

#include "platform/linux/gpu/GPUSource.h"

namespace zephrine {

class BackgroundSource final : public GPUSource {
public:
    /// The thread keeps `presence` for as long as it runs.
    BackgroundSource(std::unique_ptr<GPUSource> slow, std::shared_ptr<const void> presence);
    /// Lets go of a thread that does not end soon.
    ~BackgroundSource() override;
    BackgroundSource(const BackgroundSource&) = delete;
    BackgroundSource& operator=(const BackgroundSource&) = delete;

    /// The answer to the previous call, or to the one before it when that is still to come; absent
    /// when both are, since an older figure no longer holds.
    std::optional<double> utilization() override;
    [[nodiscard]] bool mayBlock() const override { return false; }

private:
    struct Exchange;
    static void run(Exchange& exchange, GPUSource& slow);

    std::shared_ptr<Exchange> exchange_;
    std::thread thread_;
};

/// Makes background sources and keeps count of their threads: one that is stuck in its driver is
/// lost for good, and a machine that wakes a thousand times must not collect a thousand of them.
class BackgroundThreads {
public:
    /// Null when too many threads are stuck or the system grants none.
    std::unique_ptr<GPUSource> adopt(std::unique_ptr<GPUSource> source);

private:
    std::shared_ptr<const int> presence_ = std::make_shared<const int>(0);
};

}  // namespace zephrine
