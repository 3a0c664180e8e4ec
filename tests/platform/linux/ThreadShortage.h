// SPDX-License-Identifier: MIT
// A system that grants this test program no more threads, as under RLIMIT_NPROC (getrlimit(2)).
#pragma once

namespace zephrine::testing {

/// As long as it exists. One at a time.
class ThreadShortage {
public:
    ThreadShortage();
    ~ThreadShortage();
    ThreadShortage(const ThreadShortage&) = delete;
    ThreadShortage& operator=(const ThreadShortage&) = delete;
};

}  // namespace zephrine::testing
