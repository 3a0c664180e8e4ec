// SPDX-License-Identifier: MIT
// A process table over a procfs of plain files, and captures of it as the program takes them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "platform/linux/processes/FakeProc.h"
#include "platform/linux/processes/LinuxProcessTable.h"

namespace zephrine::testing {

class LinuxProcessTableTest : public ::testing::Test {
protected:
    /// The pids that a capture would visit.
    std::vector<std::int32_t> list() {
        const int count = table_.proc_listallpids({});
        std::vector<std::int32_t> pids(static_cast<std::size_t>(std::max(0, count)) + 128);
        pids.resize(static_cast<std::size_t>(std::max(0, table_.proc_listallpids(pids))));
        return pids;
    }
    /// A capture; the pids that it could read.
    std::vector<std::int32_t> capture() {
        std::vector<std::int32_t> readable = list();
        std::erase_if(readable, [this](auto pid) { return !table_.proc_pid_rusage(pid); });
        return readable;
    }
    std::string name(std::int32_t pid) {
        std::array<char, 1024> buffer{};
        const int length = table_.proc_name(pid, buffer);
        return {buffer.data(), static_cast<std::size_t>(std::max(0, length))};
    }

    FakeProc proc_;
    std::uint64_t page_ = static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
    LinuxProcessTable table_{proc_.tree.root(), proc_.clock()};
};

}  // namespace zephrine::testing
