// SPDX-License-Identifier: MIT
// One small file of /proc or /sys that is read again and again: its descriptor is kept open and
// read at offset 0, which costs half of opening, reading and closing it each time.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace zephrine {

class CounterFile {
public:
    explicit CounterFile(std::string path);
    ~CounterFile();
    CounterFile(CounterFile&& other) noexcept;
    CounterFile& operator=(CounterFile&& other) noexcept;
    CounterFile(const CounterFile&) = delete;
    CounterFile& operator=(const CounterFile&) = delete;

    /// The file's text, as much as fits, in `buffer`; absent when it cannot be read. A kept
    /// descriptor that fails is opened anew once: its device may have come back, or the file system
    /// that stood behind it may have been restarted. Never waits, whatever the path leads to.
    std::optional<std::string_view> read(std::span<char> buffer);
    /// Why the last reading failed, if it did.
    [[nodiscard]] std::error_code error() const { return error_; }

private:
    bool open();
    void close();
    std::optional<std::string_view> readOnce(std::span<char> buffer);

    std::string path_;
    int descriptor_ = -1;
    std::error_code error_;
};

}  // namespace zephrine
