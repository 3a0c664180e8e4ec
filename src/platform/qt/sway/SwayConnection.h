// SPDX-License-Identifier: MIT
// Questions and commands to the compositor sway: sway-ipc(7).
#pragma once

#include <QByteArray>
#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {

/// The path of its socket; empty where this program is no X11 client in a session of sway.
[[nodiscard]] std::string swaySocket();

class SwayConnection {
public:
    enum class Request : std::uint32_t {
        runCommand = 0,
        getWorkspaces = 1,
        subscribe = 2,
        getTree = 4
    };

    /// To the socket at `path`.
    explicit SwayConnection(const std::string& path);

    /// The answer, which is JSON; absent when there is none. Waits for it, but all the questions
    /// of one connection together for no longer than a second.
    [[nodiscard]] std::optional<QByteArray> ask(Request request, const QByteArray& payload = {});

    /// What sway has told since it was asked to (`Request::subscribe`), one by one, as JSON. Waits
    /// a second at most; absent when nothing has come whole by then.
    [[nodiscard]] std::optional<QByteArray> nextEvent();

    /// Becomes readable when there is an event; below 0 without a connection.
    [[nodiscard]] int descriptor() const { return socket_.get(); }

private:
    [[nodiscard]] std::optional<QByteArray> receiveMessage(std::uint32_t type, std::uint32_t mask);
    [[nodiscard]] bool send(Request request, const QByteArray& payload);
    [[nodiscard]] bool receive(std::span<char> bytes);
    [[nodiscard]] bool waitForBytes() const;

    FileDescriptor socket_;
    std::chrono::steady_clock::time_point end_;
};

}  // namespace zephrine
