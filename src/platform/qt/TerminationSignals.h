// SPDX-License-Identifier: MIT
// SIGTERM, SIGINT and SIGHUP as ordinary events of the main loop, so that the program ends by the
// same door as through its Quit button.
#pragma once

#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigset_t is POSIX

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {

class TerminationSignals {
public:
    /// From here on the signals wait, also for threads made later. One that the parent process
    /// had set to be ignored (nohup) stays ignored.
    TerminationSignals();
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

    /// Needs the application object. `handler` runs on the main thread.
    void deliverTo(std::function<void()> handler);

private:
    sigset_t before_{};
    FileDescriptor source_;
    QObject context_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zephrine
