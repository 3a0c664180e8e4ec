// SPDX-License-Identifier: MIT
// Sees which files of a folder are opened and read, so that a test can say what must be left alone.
#pragma once

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

namespace zephrine::testing {

class OpenWatch {
public:
    /// Watches the files directly in `folder`.
    explicit OpenWatch(const std::string& folder)
        : descriptor_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        if (::inotify_add_watch(descriptor_, folder.c_str(), IN_OPEN | IN_ACCESS) < 0) {
            throw std::runtime_error("cannot watch " + folder);
        }
    }
    ~OpenWatch() { ::close(descriptor_); }
    OpenWatch(const OpenWatch&) = delete;
    OpenWatch& operator=(const OpenWatch&) = delete;

    /// Names of the files read since the last call of this function, once for each read.
    std::multiset<std::string> takeReads() {
        collect();
        return std::exchange(reads_, {});
    }
    /// Names of all files that were opened or read so far.
    std::set<std::string> touched() {
        collect();
        return touched_;
    }

private:
    void collect() {
        alignas(inotify_event) std::array<char, 4096> buffer{};
        for (;;) {
            const ssize_t length = ::read(descriptor_, buffer.data(), buffer.size());
            if (length <= 0) {
                return;
            }
            for (std::size_t offset = 0; offset < static_cast<std::size_t>(length);) {
                inotify_event event{};
                std::memcpy(&event, buffer.data() + offset, sizeof event);
                const char* const name = buffer.data() + offset + sizeof event;
                offset += sizeof event + event.len;
                if (event.len > 0 && (event.mask & IN_ISDIR) == 0) {
                    add(name, event.mask);
                }
            }
        }
    }

    void add(const std::string& name, std::uint32_t mask) {
        touched_.insert(name);
        if ((mask & IN_ACCESS) != 0) {
            reads_.insert(name);
        }
    }

    int descriptor_;
    std::multiset<std::string> reads_;
    std::set<std::string> touched_;
};

}  // namespace zephrine::testing
