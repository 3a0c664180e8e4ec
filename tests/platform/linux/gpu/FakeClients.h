// SPDX-License-Identifier: MIT
// Processes with open graphics devices in a folder that stands in for /proc.
#pragma once

#include <cstdint>
#include <string>

#include "platform/linux/FakeTree.h"

namespace zephrine::testing {

class FakeClients {
public:
    /// Opens `target` as descriptor `number` of process `pid`, with this fdinfo.
    void open(int pid, int number, const std::string& target, const std::string& fdinfo) const {
        const std::string process = std::to_string(pid);
        tree.link(process + "/fd/" + std::to_string(number), target);
        tell(pid, number, fdinfo);
    }
    /// Replaces the descriptor's fdinfo.
    void tell(int pid, int number, const std::string& fdinfo) const {
        tree.write(std::to_string(pid) + "/fdinfo/" + std::to_string(number), fdinfo);
    }
    void close(int pid, int number) const {
        tree.remove(std::to_string(pid) + "/fd/" + std::to_string(number));
        tree.remove(std::to_string(pid) + "/fdinfo/" + std::to_string(number));
    }
    /// What a client of the card at `address` reads whose render engine worked for so long.
    static std::string client(const std::string& id, const std::string& address,
                              std::uint64_t nanoseconds) {
        return "pos:\t0\nflags:\t02100002\ndrm-driver:\ti915\ndrm-client-id:\t" + id +
               "\ndrm-pdev:\t" + address + "\ndrm-engine-render:\t" + std::to_string(nanoseconds) +
               " ns\n";
    }

    FakeTree tree;
};

}  // namespace zephrine::testing
