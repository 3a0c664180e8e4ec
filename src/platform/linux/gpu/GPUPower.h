// SPDX-License-Identifier: MIT
// What the kernel tells about a graphics card's power without touching the card. Asking a sleeping
// card wakes it, and asking one that has nothing to do, again and again, keeps it from falling
// asleep: both cost a laptop more than all the rest of this program.
#pragma once

#include <optional>
#include <string>

#include "platform/linux/base/CounterFile.h"
#include "platform/linux/gpu/GraphicsCards.h"

namespace zephrine {

class GPUPower {
public:
    explicit GPUPower(const GraphicsCard& card);

    /// True when asking the card does not wake it. Opens nothing but its runtime status.
    bool isAwake();
    /// Seconds that the card must be left alone before it falls asleep; absent when it never does
    /// by itself.
    [[nodiscard]] std::optional<double> secondsToSleep() const;
    /// True when a screen shows this card's picture, which keeps the card awake anyway.
    [[nodiscard]] bool drivesDisplay() const;

private:
    std::string cardPath_;
    std::string powerPath_;
    CounterFile runtimeStatus_;
};

/// Counts idle readings, to find the moment to leave a card alone for a while.
class IdleCount {
public:
    /// To be told each figure. True once the card has been idle for several in a row; the count
    /// then begins anew.
    bool reaches(double percent);

private:
    int readings_ = 0;
};

}  // namespace zephrine
