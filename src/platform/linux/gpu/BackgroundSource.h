// SPDX-License-Identifier: MIT
// A source on a thread of its own, since it may take its time, or never come back from its driver.
// It is read a little before the main thread asks, which takes the figure and never waits.
#pragma once

#include <chrono>
#include <memory>

#include "platform/linux/base/LooseThreads.h"
#include "platform/linux/gpu/GPUSource.h"

namespace zephrine {

class BackgroundSource final : public GPUSource {
public:
    using Duration = std::chrono::steady_clock::duration;

    /// Makes its source, and reads it, on one of `threads`, which outlive it. A thread that has
    /// been at one reading for `patience` is let go of, and a source made anew has another try; the
    /// next one that gets stuck is given twice the time.
    BackgroundSource(GPUSourceMaker make, LooseThreads& threads,
                     Duration patience = std::chrono::seconds(30));
    /// Lets go of a thread that does not end soon.
    ~BackgroundSource() override;
    BackgroundSource(const BackgroundSource&) = delete;
    BackgroundSource& operator=(const BackgroundSource&) = delete;

    /// A figure that is not older than the time between two calls; absent when there is none, as at
    /// the first call, or when the system grants no thread.
    std::optional<double> utilization() override;

private:
    struct Exchange;
    void start();
    void letGoOfThread();
    [[nodiscard]] bool isStuck(std::chrono::steady_clock::time_point now) const;

    GPUSourceMaker make_;
    LooseThreads& threads_;
    Duration patience_;
    std::shared_ptr<Exchange> exchange_;
    std::unique_ptr<LooseThread> thread_;
};

}  // namespace zephrine
