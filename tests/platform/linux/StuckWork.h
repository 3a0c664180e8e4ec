// SPDX-License-Identifier: MIT
// Work that waits until a test lets it go on, and outlives the test where it must.
#pragma once

#include <atomic>
#include <functional>
#include <future>
#include <memory>

#include "platform/linux/Eventually.h"

namespace zephrine::testing {

class StuckWork {
public:
    StuckWork() = default;
    ~StuckWork() { goOn(); }
    StuckWork(const StuckWork&) = delete;
    StuckWork& operator=(const StuckWork&) = delete;

    std::function<void()> work() {
        return [state = state_] {
            ++state->waiting;
            state->answer.wait();
            --state->waiting;
        };
    }
    [[nodiscard]] int waiting() const { return state_->waiting; }
    /// For all that wait, and from now on nobody does.
    void goOn() {
        if (!answered_) {
            answered_ = true;
            state_->question.set_value();
        }
        eventually([this] { return waiting() == 0; });
    }

private:
    struct State {
        std::promise<void> question;
        std::shared_future<void> answer = question.get_future().share();
        std::atomic<int> waiting = 0;
    };
    std::shared_ptr<State> state_ = std::make_shared<State>();
    bool answered_ = false;
};

}  // namespace zephrine::testing
