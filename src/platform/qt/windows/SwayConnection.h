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

class SwayConnection {
public:
    enum class Request : std::uint32_t { runCommand = 0, getWorkspaces = 1, getTree = 4 };

    /// To the socket that the environment variable SWAYSOCK names.
    explicit SwayConnection(const std::string& path);

    /// The answer, which is JSON; absent when there is none. Waits for it, but all the questions
    /// of one connection together for no longer than a quarter of a second.
    [[nodiscard]] std::optional<QByteArray> ask(Request request, const QByteArray& payload = {});

private:
    [[nodiscard]] bool send(Request request, const QByteArray& payload);
    [[nodiscard]] bool receive(std::span<char> bytes);
    [[nodiscard]] bool waitForBytes() const;

    FileDescriptor socket_;
    std::chrono::steady_clock::time_point end_;
};

}  // namespace zephrine
