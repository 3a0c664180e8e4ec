// SPDX-License-Identifier: MIT
// The little that is used of NVIDIA's management library, which is loaded when it is needed: this
// program is built without it and runs on machines that have none.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace zephrine {

/// The library while it is started. Being started, and having asked about a card, keeps cards
/// awake. Any call may take its time.
class NVML {
public:
    /// Null when there is no such library or it does not start.
    static std::unique_ptr<NVML> start(const std::string& library);
    ~NVML();
    NVML(const NVML&) = delete;
    NVML& operator=(const NVML&) = delete;

    /// Percent of the card at `address` on the PCI bus; absent when the library does not tell.
    [[nodiscard]] std::optional<double> utilization(const std::string& address) const;
    /// True when a display server shows the card's picture on a screen.
    [[nodiscard]] bool drivesDisplay(const std::string& address) const;

private:
    struct Functions;
    explicit NVML(std::unique_ptr<Functions> functions);

    std::unique_ptr<Functions> functions_;
};

}  // namespace zephrine
