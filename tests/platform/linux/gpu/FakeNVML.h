// SPDX-License-Identifier: MIT
// The folder that tells the fake of NVIDIA's library what to answer (see FakeNVML.cpp).
#pragma once

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "platform/linux/FakeTree.h"

namespace zephrine::testing {

class FakeNVML {
public:
    FakeNVML() { ::setenv("ZEPHRINE_FAKE_NVML", tree_.root().c_str(), 1); }

    static std::string library() { return ZEPHRINE_FAKE_NVML_LIBRARY; }

    void setUtilization(const std::string& address, int percent) const {
        set(address, std::to_string(percent));
    }
    void set(const std::string& name, const std::string& value) const {
        // Renamed into place: the library may be reading on its thread.
        tree_.write("new", value + "\n");
        std::filesystem::rename(tree_.path("new"), tree_.path(name));
    }
    void clear(const std::string& name) const { tree_.remove(name); }

    /// The calls of the library's functions since they were last forgotten.
    [[nodiscard]] std::vector<std::string> calls() const {
        std::ifstream stream(tree_.path("calls"));
        std::vector<std::string> calls;
        for (std::string call; stream >> call;) {
            calls.push_back(call);
        }
        return calls;
    }
    void forgetCalls() const { tree_.remove("calls"); }

    /// True while this process has the device file open that the library opens when it starts.
    [[nodiscard]] bool holdsDevice() const {
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
            std::error_code closed;
            if (std::filesystem::read_symlink(entry, closed) == tree_.path("nvidia0")) {
                return true;
            }
        }
        return false;
    }

private:
    FakeTree tree_;
};

}  // namespace zephrine::testing
