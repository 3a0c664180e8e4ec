// SPDX-License-Identifier: MIT
// Reads by `pread` at offset 0: the files of /proc and /sys are composed anew for each such read.
#include "platform/linux/base/CounterFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace zephrine {

CounterFile::CounterFile(std::string path) : path_(std::move(path)) {}

CounterFile::~CounterFile() {
    close();
}

CounterFile::CounterFile(CounterFile&& other) noexcept
    : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1)) {}

CounterFile& CounterFile::operator=(CounterFile&& other) noexcept {
    path_.swap(other.path_);
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

std::optional<std::string_view> CounterFile::read(std::span<char> buffer) {
    if (descriptor_ >= 0) {
        if (const auto text = readOnce(buffer)) {
            return text;
        }
        close();
    }
    if (!open()) {
        return std::nullopt;
    }
    const auto text = readOnce(buffer);
    if (!text) {
        close();
    }
    return text;
}

bool CounterFile::open() {
    // O_NONBLOCK: a FIFO in the place of a counter must not hold up the program.
    descriptor_ = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor_ < 0) {
        error_ = {errno, std::system_category()};
    }
    return descriptor_ >= 0;
}

void CounterFile::close() {
    if (descriptor_ >= 0) {
        ::close(std::exchange(descriptor_, -1));
    }
}

std::optional<std::string_view> CounterFile::readOnce(std::span<char> buffer) {
    ssize_t length = 0;
    do {
        length = ::pread(descriptor_, buffer.data(), buffer.size(), 0);
    } while (length < 0 && errno == EINTR);
    if (length < 0) {
        error_ = {errno, std::system_category()};
        return std::nullopt;
    }
    return std::string_view(buffer.data(), static_cast<std::size_t>(length));
}

}  // namespace zephrine
