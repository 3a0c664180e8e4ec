// SPDX-License-Identifier: MIT
// How busy a card is, added up from what its clients had of it.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/linux/gpu/BusyRate.h"
#include "platform/linux/gpu/Fdinfo.h"

namespace zephrine {

class ClientLoad {
public:
    /// Counts one client in this pass; a second descriptor of the same client changes nothing.
    void add(const ClientUsage& usage);

    /// Ends the pass: the busiest engine's percent. Absent when no client has been seen in two
    /// passes. Clients that this pass did not see are forgotten.
    std::optional<double> finishPass();

private:
    struct Client {
        unsigned pass = 0;  ///< the last one that saw it
        std::map<std::string, BusyRate, std::less<>> engines;
    };
    std::map<std::string, Client, std::less<>> clients_;
    std::map<std::string, double, std::less<>> percents_;  ///< of this pass, by engine
    unsigned pass_ = 1;
};

}  // namespace zephrine
