// SPDX-License-Identifier: MIT
// See the header. Interrupted calls are repeated, short ones continued.
#include "platform/linux/base/FileDescriptor.h"

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <utility>

namespace zephrine {

FileDescriptor::~FileDescriptor() {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

std::optional<std::string_view> FileDescriptor::read(std::span<char> buffer) const {
    std::size_t length = 0;
    while (length < buffer.size()) {
        const ssize_t got = ::pread(descriptor_, buffer.data() + length, buffer.size() - length,
                                    static_cast<off_t>(length));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return std::nullopt;
        }
        if (got == 0) {
            break;
        }
        length += static_cast<std::size_t>(got);
    }
    return std::string_view(buffer.data(), length);
}

bool FileDescriptor::write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t put = ::write(descriptor_, bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR) {
            continue;
        }
        if (put <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
    return true;
}

}  // namespace zephrine
