// SPDX-License-Identifier: MIT
// A file that does not answer: a FIFO, which keeps waiting whoever opens it to read until somebody
// opens it to write (fifo(7)).
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <string>
#include <utility>

#include "platform/linux/Eventually.h"

namespace zephrine::testing {

class HangingFile {
public:
    explicit HangingFile(std::string path) : path_(std::move(path)) {
        if (::mkfifo(path_.c_str(), 0600) != 0) {
            throw std::runtime_error("no FIFO at " + path_);
        }
    }
    /// Nobody is left waiting.
    ~HangingFile() {
        answer();
        ::unlink(path_.c_str());
    }
    HangingFile(const HangingFile&) = delete;
    HangingFile& operator=(const HangingFile&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }
    /// Opens it as a careless reader does.
    void read() const { ::close(::open(path_.c_str(), O_RDONLY | O_CLOEXEC)); }
    /// Lets all who wait for it find it empty.
    void answer() const {
        while (hasReader()) {
            usleep(1000);
        }
    }

private:
    [[nodiscard]] bool hasReader() const {
        const int writer = ::open(path_.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        return writer >= 0 && ::close(writer) == 0;  // ENXIO: nobody reads
    }

    std::string path_;
};

}  // namespace zephrine::testing
