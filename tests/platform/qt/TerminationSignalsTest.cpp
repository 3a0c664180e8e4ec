// SPDX-License-Identifier: MIT
#include "platform/qt/TerminationSignals.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

// How they end the program is tested with the application object, which reads them first.

TEST(TerminationSignals, LeaveAloneWhatTheParentProcessIgnores) {
    const auto before = signal(SIGHUP, SIG_IGN);
    sigset_t none;
    sigset_t outer;
    sigset_t blocked;
    sigemptyset(&none);
    pthread_sigmask(SIG_SETMASK, &none, &outer);
    {
        const TerminationSignals caught;
        pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
    }
    pthread_sigmask(SIG_SETMASK, &outer, nullptr);
    signal(SIGHUP, before);
    EXPECT_EQ(sigismember(&blocked, SIGHUP), 0);
    EXPECT_EQ(sigismember(&blocked, SIGTERM), 1);
}

}  // namespace
}  // namespace zephrine
