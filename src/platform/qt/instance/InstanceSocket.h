// SPDX-License-Identifier: MIT
// Instances that meet at a socket of the user's runtime folder, where there is no session bus. A
// message is one packet of option words; the answer is one packet as well.
#pragma once

#include <unistd.h>

#include <QObject>
#include <QSocketNotifier>
#include <memory>
#include <string>

#include "platform/linux/base/FileDescriptor.h"
#include "platform/qt/instance/Handover.h"

namespace zephrine {

/// Asks the instance that listens at `path`, if it is the same user's. Needs no application object.
Handover handOverSocket(const std::string& path, const HandedOptions& options);

class InstanceSocket {
public:
    /// Messages of other users than `user` are refused.
    explicit InstanceSocket(HandoverReceiver receiver, uid_t user = ::geteuid());
    ~InstanceSocket();
    InstanceSocket(const InstanceSocket&) = delete;
    InstanceSocket& operator=(const InstanceSocket&) = delete;

    /// Listens at `path` from now on, unless somebody does. What a crashed instance has left there
    /// is cleared away. False when somebody listens.
    [[nodiscard]] bool claim(const std::string& path);

private:
    void accept();
    void answer(const FileDescriptor& peer);

    HandoverReceiver receiver_;
    uid_t user_;
    std::string path_;  ///< empty until it listens
    FileDescriptor listener_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QObject conversations_;  ///< its children: one notifier a connection
};

}  // namespace zephrine
