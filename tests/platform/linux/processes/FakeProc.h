// SPDX-License-Identifier: MIT
// A procfs of plain files, and the CPU clocks of the processes in it.
#pragma once

#include <unistd.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "platform/linux/FakeTree.h"

namespace zephrine::testing {

class FakeProc {
public:
    FakeProc() {
        tree.link("self", std::to_string(::getpid()));
        newest(1);
        tree.write("swaps", "Filename\tType\tSize\tUsed\tPriority\n");
    }

    void newest(std::int32_t pid) const {
        tree.write("loadavg", "0.39 0.14 0.05 1/88 " + std::to_string(pid) + "\n");
    }

    /// A process that has run for `cpuTime`, with its newest files.
    void start(std::int32_t pid, const std::string& comm, std::uint64_t startTime,
               std::uint64_t cpuTime, std::uint64_t pages = 10) {
        const std::string folder = std::to_string(pid);
        tree.write(folder + "/stat", statLine(pid, comm, startTime));
        tree.write(folder + "/statm", "900 " + std::to_string(pages + 5) + " 5 1 0 1 0\n");
        clocks[pid] = cpuTime;
    }
    void end(std::int32_t pid) {
        tree.remove(std::to_string(pid));
        clocks.erase(pid);
    }
    /// The files of a process that another user may not see: only its clock answers.
    void hide(std::int32_t pid) const { tree.remove(std::to_string(pid)); }

    static std::string statLine(std::int32_t pid, const std::string& comm,
                                std::uint64_t startTime) {
        return std::to_string(pid) + " (" + comm +
               ") S 1 2 3 0 -1 4194368 274 0 0 0 0 0 0 0 20 0 1 0 " + std::to_string(startTime) +
               " 17289216 2724\n";
    }

    /// To be given to the table; counts its calls, and lets a test step in at one of them.
    std::function<std::optional<std::uint64_t>(std::int32_t)> clock() {
        return [this](std::int32_t pid) -> std::optional<std::uint64_t> {
            ++clockReads[pid];
            if (onClockRead) {
                onClockRead(pid);
            }
            const auto found = clocks.find(pid);
            return found == clocks.end() ? std::nullopt : std::optional(found->second);
        };
    }

    FakeTree tree;
    std::map<std::int32_t, std::uint64_t> clocks;
    std::map<std::int32_t, int> clockReads;
    std::function<void(std::int32_t)> onClockRead;
};

}  // namespace zephrine::testing
