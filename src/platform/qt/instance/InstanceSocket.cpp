// SPDX-License-Identifier: MIT
// The packets: SOCK_SEQPACKET keeps them whole (unix(7)). Whatever is not a message of ours gets no
// answer and the connection closed.
#include "platform/qt/instance/InstanceSocket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

#include "platform/LaunchOptions.h"
#include "platform/linux/base/UnixSocket.h"

namespace zephrine {

namespace {

constexpr std::string_view comeForward = "open";
constexpr std::string_view taken = "done";
using Packet = std::array<char, 256>;

std::string messageOf(const HandedOptions& options) {
    std::string message(comeForward);
    for (const LaunchOption option : options) {
        message.append(" ").append(wordOf(option));
    }
    return message;
}

/// Absent when the message is anything but `comeForward` and known options behind it.
std::optional<HandedOptions> optionsIn(std::string_view message) {
    HandedOptions options;
    if (!message.starts_with(comeForward)) {
        return std::nullopt;
    }
    message.remove_prefix(comeForward.size());
    while (message.starts_with(' ')) {
        message.remove_prefix(1);
        const std::string_view word = message.substr(0, message.find(' '));
        const auto option = launchOptionOf(word);
        if (!option) {
            return std::nullopt;
        }
        options.push_back(*option);
        message.remove_prefix(word.size());
    }
    return message.empty() ? std::optional(options) : std::nullopt;
}

/// The next packet; absent at the end, on an error and when it is longer than any message.
std::optional<std::string_view> receive(const FileDescriptor& peer, Packet& packet) {
    const ssize_t size = ::recv(peer.get(), packet.data(), packet.size(), MSG_TRUNC);
    return size > 0 && static_cast<std::size_t>(size) <= packet.size()
               ? std::optional(std::string_view(packet.data(), static_cast<std::size_t>(size)))
               : std::nullopt;
}

bool send(const FileDescriptor& peer, std::string_view packet) {
    return ::send(peer.get(), packet.data(), packet.size(), MSG_NOSIGNAL) ==
           static_cast<ssize_t>(packet.size());
}

bool isReadableInTime(const FileDescriptor& peer) {
    pollfd wait{.fd = peer.get(), .events = POLLIN, .revents = 0};
    return ::poll(&wait, 1, static_cast<int>(handoverPatience.count())) == 1;
}

}  // namespace

Handover handOverSocket(const std::string& path, const HandedOptions& options) {
    const FileDescriptor peer = connectToSocket(path, SOCK_SEQPACKET);
    if (!peer) {
        return Handover::nobody;
    }
    Packet packet;
    const bool done = isPeerOf(peer, ::geteuid()) && send(peer, messageOf(options)) &&
                      isReadableInTime(peer) && receive(peer, packet) == taken;
    return done ? Handover::done : Handover::silent;
}

InstanceSocket::InstanceSocket(HandoverReceiver receiver, uid_t user)
    : receiver_(std::move(receiver)), user_(user) {}

InstanceSocket::~InstanceSocket() {
    if (!path_.empty()) {
        ::unlink(path_.c_str());  // before it stops listening: after that it may be another's
    }
}

bool InstanceSocket::claim(const std::string& path) {
    const std::string folder = path.substr(0, path.rfind('/'));
    ::mkdir(folder.c_str(), S_IRWXU);
    // Two that start at the same time come here one after the other.
    const FileDescriptor lock(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ::flock(lock.get(), LOCK_EX);
    if (hasListener(path, SOCK_SEQPACKET)) {
        return false;
    }
    ::unlink(path.c_str());
    listener_ = listenAtSocket(path, SOCK_SEQPACKET);
    if (listener_) {
        path_ = path;
        notifier_ = std::make_unique<QSocketNotifier>(listener_.get(), QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, &conversations_,
                         [this] { accept(); });
    }
    return true;
}

void InstanceSocket::accept() {
    constexpr qsizetype kMost = 32;  // several of a session that starts all at once among them
    const auto peer = std::make_shared<const FileDescriptor>(
        ::accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!*peer || !isPeerOf(*peer, user_) || conversations_.children().size() >= kMost) {
        return;
    }
    auto* const notifier = new QSocketNotifier(peer->get(), QSocketNotifier::Read, &conversations_);
    QObject::connect(notifier, &QSocketNotifier::activated, &conversations_,
                     [this, peer, notifier] {
                         notifier->setEnabled(false);
                         answer(*peer);
                         notifier->deleteLater();  // and with it goes the connection
                     });
}

void InstanceSocket::answer(const FileDescriptor& peer) {
    Packet packet;
    const auto message = receive(peer, packet);
    const auto options = message ? optionsIn(*message) : std::nullopt;
    if (!options) {
        return;
    }
    if (options->empty()) {
        receiver_(std::nullopt);
    }
    for (const LaunchOption option : *options) {
        receiver_(option);
    }
    static_cast<void>(send(peer, taken));  // who no longer waits misses nothing
}

}  // namespace zephrine
