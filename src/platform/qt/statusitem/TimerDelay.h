// SPDX-License-Identifier: MIT
// A delay in real time.
#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

#include "platform/qt/statusitem/HostBus.h"

namespace zephrine {

class TimerDelay final : public Delay {
public:
    explicit TimerDelay(std::chrono::milliseconds duration) {
        timer_.setSingleShot(true);
        timer_.setInterval(duration);
        timer_.callOnTimeout([this] { action_(); });
    }

    void start(std::function<void()> action) override {
        action_ = std::move(action);
        timer_.start();
    }
    void stop() override { timer_.stop(); }

private:
    QTimer timer_;
    std::function<void()> action_;
};

}  // namespace zephrine
