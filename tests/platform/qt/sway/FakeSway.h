// SPDX-License-Identifier: MIT
// A thread that listens where sway would, and answers well or badly.
#pragma once

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QByteArray>
#include <QTemporaryDir>
#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/linux/base/UnixSocket.h"

namespace zephrine {

/// A message of sway's.
inline QByteArray messageOfSway(std::uint32_t type, const QByteArray& json) {
    const auto length = static_cast<std::uint32_t>(json.size());
    QByteArray message("i3-ipc");
    message.append(reinterpret_cast<const char*>(&length), sizeof length);
    message.append(reinterpret_cast<const char*>(&type), sizeof type);
    return message + json;
}

class FakeSway {
public:
    /// What it says to a request of this type; it hangs up where that is empty. Called on the
    /// thread: set it before a client calls.
    std::function<QByteArray(std::uint32_t type, const QByteArray& payload)> answer;

    FakeSway() : thread_([this] { serve(); }) {}
    ~FakeSway() { end(); }
    FakeSway(const FakeSway&) = delete;
    FakeSway& operator=(const FakeSway&) = delete;

    /// Where to call it. What the test has set before this, the thread sees.
    [[nodiscard]] std::string path() const {
        const std::lock_guard lock(mutex_);
        return path_;
    }

    /// Says nothing any more, and hangs up on everybody.
    void end() {
        if (thread_.joinable()) {
            const std::uint64_t one = 1;
            static_cast<void>(::write(end_.get(), &one, sizeof one));
            thread_.join();
        }
    }

private:
    void serve() {
        std::vector<FileDescriptor> clients;
        for (;;) {
            std::vector<pollfd> waited{{end_.get(), POLLIN, 0}, {listener_.get(), POLLIN, 0}};
            for (const FileDescriptor& client : clients) {
                waited.push_back({client.get(), POLLIN, 0});
            }
            ::poll(waited.data(), waited.size(), -1);
            if (waited[0].revents != 0) {
                return;
            }
            for (std::size_t i = clients.size(); i-- > 0;) {
                if (waited[i + 2].revents != 0 && !serve(clients[i])) {
                    clients.erase(clients.begin() + static_cast<std::ptrdiff_t>(i));
                }
            }
            if (waited[1].revents != 0) {
                clients.emplace_back(::accept(listener_.get(), nullptr, nullptr));
            }
        }
    }

    /// Whether the client is still there, and answered.
    [[nodiscard]] bool serve(const FileDescriptor& client) const {
        std::array<char, 14> head{};
        if (::recv(client.get(), head.data(), head.size(), MSG_WAITALL) !=
            static_cast<ssize_t>(head.size())) {
            return false;
        }
        std::array<std::uint32_t, 2> numbers{};
        std::memcpy(numbers.data(), head.data() + 6, sizeof numbers);
        QByteArray payload(static_cast<qsizetype>(numbers[0]), '\0');
        if (!payload.isEmpty() && ::recv(client.get(), payload.data(), numbers[0], MSG_WAITALL) !=
                                      static_cast<ssize_t>(numbers[0])) {
            return false;
        }
        const std::lock_guard lock(mutex_);
        const QByteArray bytes = answer(numbers[1], payload);
        return !bytes.isEmpty() &&
               ::send(client.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()),
                      MSG_NOSIGNAL) == bytes.size();
    }

    mutable std::mutex mutex_;
    QTemporaryDir folder_;
    std::string path_ = folder_.path().toStdString() + "/sway";
    FileDescriptor listener_ = listenAtSocket(path_, SOCK_STREAM);
    FileDescriptor end_{::eventfd(0, 0)};
    std::thread thread_;
};

}  // namespace zephrine
