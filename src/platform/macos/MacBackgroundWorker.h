// SPDX-License-Identifier: MIT
// A serial queue of utility quality: its jobs run one after another, behind what the user sees.
#pragma once

#include <atomic>

#include "platform/RunLoop.h"

#import <Foundation/Foundation.h>

namespace zephrine {

class MacBackgroundWorker final : public BackgroundWorker {
public:
    MacBackgroundWorker();
    /// Waits for the job that runs, if any; the others are dropped.
    ~MacBackgroundWorker() override;
    MacBackgroundWorker(const MacBackgroundWorker&) = delete;
    MacBackgroundWorker& operator=(const MacBackgroundWorker&) = delete;

    /// No call of this system that a job makes is known to get stuck: none is given up.
    void perform(Job job, std::function<void()> givenUp) override;

private:
    dispatch_queue_t queue_;
    std::shared_ptr<std::atomic<bool>> stopped_;  ///< outlives the worker with the last block
};

}  // namespace zephrine
