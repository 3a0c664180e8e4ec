// SPDX-License-Identifier: MIT
// What fakes were asked to do, in the order in which it happened. Copies share one record: fakes
// that were handed the same log tell of an order that runs through all of them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace zephrine {

class CallLog {
public:
    void note(std::string call) const {
        if (record_->echo != nullptr) {
            *record_->echo << call << std::endl;
        }
        record_->calls.push_back(std::move(call));
    }
    void clear() { record_->calls.clear(); }

    [[nodiscard]] const std::vector<std::string>& all() const { return record_->calls; }
    [[nodiscard]] bool has(const std::string& call) const {
        return std::find(all().begin(), all().end(), call) != all().end();
    }
    /// Succeeds when these calls came, each as often as it is named, in this order. Other calls may
    /// stand before, between and after them.
    [[nodiscard]] testing::AssertionResult inOrder(const std::vector<std::string>& names) const {
        std::vector<std::string> came;
        std::copy_if(all().begin(), all().end(), std::back_inserter(came), [&](const auto& call) {
            return std::find(names.begin(), names.end(), call) != names.end();
        });
        return came == names ? testing::AssertionSuccess()
                             : testing::AssertionFailure()
                                   << "in order came " << testing::PrintToString(came);
    }

    /// From now on, writes each call to `stream` at once: a death test sees what came before.
    void echoTo(std::ostream& stream) { record_->echo = &stream; }

private:
    struct Record {
        std::vector<std::string> calls;
        std::ostream* echo = nullptr;
    };
    std::shared_ptr<Record> record_ = std::make_shared<Record>();
};

}  // namespace zephrine
