// SPDX-License-Identifier: MIT
// Wakes the event loop as soon as the machine has resumed from sleep (or its wall clock was set),
// so that nobody waits for the next timer to notice.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>

#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {

class ResumeSignal {
public:
    explicit ResumeSignal(std::function<void()> handler);

private:
    void arm();

    FileDescriptor kernelTimer_;
    QSocketNotifier notifier_;
    QObject context_;
};

}  // namespace zephrine
