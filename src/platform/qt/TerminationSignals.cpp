// SPDX-License-Identifier: MIT
// Blocked signals, read through signalfd(2).
#include "platform/qt/TerminationSignals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace zephrine {

namespace {

bool isIgnored(int number) {
    struct sigaction action {};
    return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

TerminationSignals::TerminationSignals() {
    sigset_t handled;
    sigemptyset(&handled);
    for (const int number : std::array{SIGTERM, SIGINT, SIGHUP}) {
        if (!isIgnored(number)) {
            sigaddset(&handled, number);
        }
    }
    pthread_sigmask(SIG_BLOCK, &handled, &before_);
    source_ = FileDescriptor(signalfd(-1, &handled, SFD_NONBLOCK | SFD_CLOEXEC));
}

TerminationSignals::~TerminationSignals() {
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

void TerminationSignals::deliverTo(std::function<void()> handler) {
    notifier_ = std::make_unique<QSocketNotifier>(source_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, &context_,
                     [this, terminate = std::move(handler)] {
                         signalfd_siginfo received{};
                         if (::read(source_.get(), &received, sizeof received) > 0) {
                             terminate();
                         }
                     });
}

}  // namespace zephrine
