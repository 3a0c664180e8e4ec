// SPDX-License-Identifier: MIT
// Ownership of one open file descriptor, and reading a small file through it.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace zephrine {

class FileDescriptor {
public:
    FileDescriptor() = default;
    /// Takes over `descriptor`; negative means none.
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    ~FileDescriptor();
    FileDescriptor(FileDescriptor&& other) noexcept;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    explicit operator bool() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }

    /// The file's bytes from its start, as many as fit into `buffer`; absent on any error.
    [[nodiscard]] std::optional<std::string_view> read(std::span<char> buffer) const;
    /// Writes all of `bytes` where the file stands; false when not everything was taken.
    [[nodiscard]] bool write(std::string_view bytes) const;

private:
    int descriptor_ = -1;
};

}  // namespace zephrine
