// SPDX-License-Identifier: MIT
#include "platform/linux/base/UnixSocket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cerrno>
#include <cstring>
#include <optional>

namespace zephrine {

namespace {

std::optional<sockaddr_un> addressOf(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // With room for the zero at the end; a path that begins with one is none.
    if (path.empty() || path.front() == '\0' || path.size() >= sizeof address.sun_path) {
        return std::nullopt;
    }
    std::memcpy(address.sun_path, path.data(), path.size());
    return address;
}

}  // namespace

FileDescriptor connectToSocket(const std::string& path, int type) {
    const auto address = addressOf(path);
    FileDescriptor socket(::socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    // Nothing here waits, not even for room in a listener's queue.
    const bool connected =
        address &&
        ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0;
    return connected ? std::move(socket) : FileDescriptor();
}

bool hasListener(const std::string& path, int type) {
    const auto address = addressOf(path);
    const FileDescriptor socket(::socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return address && (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&*address),
                                 sizeof *address) == 0 ||
                       errno == EAGAIN);
}

FileDescriptor listenAtSocket(const std::string& path, int type) {
    // As long as the kernel allows: whoever starts up slowly may be asked by many until then.
    constexpr int kLongestQueue = SOMAXCONN;
    const auto address = addressOf(path);
    FileDescriptor socket(::socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const bool listening =
        address && ::fchmod(socket.get(), S_IRUSR | S_IWUSR) == 0 &&
        ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0 &&
        ::listen(socket.get(), kLongestQueue) == 0;
    return listening ? std::move(socket) : FileDescriptor();
}

bool isPeerOf(const FileDescriptor& socket, uid_t user) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           size == sizeof peer && peer.uid == user;
}

}  // namespace zephrine
