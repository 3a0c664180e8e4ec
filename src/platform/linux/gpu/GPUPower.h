// SPDX-License-Identifier: MIT
// Whether a graphics card may be asked anything now. Asking a sleeping card wakes it, and asking
// one that has nothing to do, again and again, keeps it from falling asleep: both cost a laptop
// more than all the rest of this program.
#pragma once

#include <optional>
#include <string>

#include "platform/linux/base/CounterFile.h"

namespace zephrine {

class GPUPower {
public:
    /// For the card at `cardPath` (/sys/class/drm/cardN).
    explicit GPUPower(const std::string& cardPath);

    /// True when the card is awake and not being left alone. Opens nothing but its runtime status.
    bool mayBeRead(double now);

    /// To be told each figure that was read. Several idle ones in a row begin a pause, longer than
    /// the card's own delay before it falls asleep, when it is free to do so.
    void noteUtilization(double percent, double now);

private:
    bool isAwake();
    [[nodiscard]] std::optional<double> autosuspendDelay() const;
    [[nodiscard]] bool drivesDisplay() const;

    std::string cardPath_;
    CounterFile runtimeStatus_;
    int idleReadings_ = 0;
    double pauseEnd_ = 0;
};

}  // namespace zephrine
