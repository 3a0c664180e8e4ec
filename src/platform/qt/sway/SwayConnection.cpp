// SPDX-License-Identifier: MIT
// Each message is a magic word, the length of what follows the head, its type, and JSON or a
// command; the two numbers are in the machine's own byte order.
#include "platform/qt/sway/SwayConnection.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "platform/linux/base/UnixSocket.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

// sway is busy while a session starts; and where it hangs, so does all that can be seen.
constexpr std::chrono::seconds kPatience{1};
constexpr std::uint32_t kLongestAnswer = 16U << 20U;  // a tree of many thousand windows
constexpr std::string_view kMagic = "i3-ipc";
constexpr std::uint32_t kEvent = 1U << 31U;  // set in the types of what comes unasked

struct Numbers {
    std::uint32_t length;
    std::uint32_t type;
};

using Head = std::array<char, kMagic.size() + sizeof(Numbers)>;

Head headOf(Numbers numbers) {
    Head head{};
    std::copy(kMagic.begin(), kMagic.end(), head.begin());
    std::memcpy(head.data() + kMagic.size(), &numbers, sizeof numbers);
    return head;
}

}  // namespace

std::string swaySocket() {
    return x11Connection() != nullptr ? qEnvironmentVariable("SWAYSOCK").toStdString()
                                      : std::string();
}

SwayConnection::SwayConnection(const std::string& path)
    : socket_(connectToSocket(path, SOCK_STREAM)),
      end_(std::chrono::steady_clock::now() + kPatience) {}

std::optional<QByteArray> SwayConnection::ask(Request request, const QByteArray& payload) {
    return send(request, payload) ? receiveMessage(static_cast<std::uint32_t>(request), ~0U)
                                  : std::nullopt;
}

std::optional<QByteArray> SwayConnection::nextEvent() {
    end_ = std::chrono::steady_clock::now() + kPatience;
    return receiveMessage(kEvent, kEvent);
}

/// A message whose type, as far as `mask` goes, is `type`.
std::optional<QByteArray> SwayConnection::receiveMessage(std::uint32_t type, std::uint32_t mask) {
    Head head{};
    if (!receive(head)) {
        return std::nullopt;
    }
    Numbers numbers{};
    std::memcpy(&numbers, head.data() + kMagic.size(), sizeof numbers);
    if (numbers.length > kLongestAnswer || head != headOf(numbers) ||
        (numbers.type & mask) != type) {
        return std::nullopt;
    }
    QByteArray answer(static_cast<qsizetype>(numbers.length), Qt::Uninitialized);
    return receive({answer.data(), static_cast<std::size_t>(answer.size())}) ? std::optional(answer)
                                                                             : std::nullopt;
}

bool SwayConnection::send(Request request, const QByteArray& payload) {
    const Head head =
        headOf({static_cast<std::uint32_t>(payload.size()), static_cast<std::uint32_t>(request)});
    const QByteArray bytes = QByteArray(head.data(), head.size()) + payload;
    return ::send(socket_.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()),
                  MSG_NOSIGNAL) == bytes.size();
}

bool SwayConnection::receive(std::span<char> bytes) {
    while (!bytes.empty()) {
        const ssize_t got = ::recv(socket_.get(), bytes.data(), bytes.size(), MSG_DONTWAIT);
        if (got > 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(got));
        } else if (got == 0 || (errno != EAGAIN && errno != EINTR) || !waitForBytes()) {
            return false;
        }
    }
    return true;
}

bool SwayConnection::waitForBytes() const {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
        end_ - std::chrono::steady_clock::now());
    pollfd waited{socket_.get(), POLLIN, 0};
    return left.count() > 0 && (::poll(&waited, 1, static_cast<int>(left.count())) > 0);
}

}  // namespace zephrine
