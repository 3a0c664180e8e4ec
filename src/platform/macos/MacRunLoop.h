// SPDX-License-Identifier: MIT
// Timers and the hop to the main thread, on the main run loop.
#pragma once

#include "platform/RunLoop.h"

namespace zephrine {

class MacRunLoop final : public RunLoop {
public:
    std::unique_ptr<Timer> scheduleTimer(Seconds interval, Seconds tolerance,
                                         std::function<void()> action) override;
    void performOnMain(std::function<void()> work) override;
};

}  // namespace zephrine
