// SPDX-License-Identifier: MIT
// A popover hides by itself as soon as the user presses outside it, also when that press is on the
// status item. The click that the same press then sends to the item must not open it again.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

namespace zephrine {

class ClickGuard {
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using Clock = std::function<TimePoint()>;

    ClickGuard() : ClickGuard([] { return std::chrono::steady_clock::now(); }) {}
    explicit ClickGuard(Clock now) : now_(std::move(now)) {}

    /// The popover has just hidden without being asked to.
    void noteAutomaticHide() { hiddenAt_ = now_(); }

    /// Whether a click on the item that arrives now belongs to the press that hid the popover.
    [[nodiscard]] bool swallowsClick() const { return hiddenAt_ && now_() - *hiddenAt_ < quiet; }

private:
    static constexpr std::chrono::milliseconds quiet{250};

    Clock now_;
    std::optional<TimePoint> hiddenAt_;
};

}  // namespace zephrine
