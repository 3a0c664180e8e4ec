// SPDX-License-Identifier: MIT
// The texts captured from real machines, and the hostile ones beside them.
#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace zephrine::testing {

/// The text of tests/data/linux/`name`.
inline std::string captured(const std::string& name) {
    std::ifstream file(std::string(ZEPHRINE_TEST_DATA) + "/linux/" + name, std::ios::binary);
    if (!file) {
        throw std::runtime_error("no test data called " + name);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace zephrine::testing
