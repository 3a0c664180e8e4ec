// SPDX-License-Identifier: MIT
// Finds which processes hold a graphics card open. To look at every descriptor of every process
// takes milliseconds, so each pass looks at new processes and a sixteenth of the others, and reads
// what is known already.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {

class DRMClientFiles {
public:
    /// For the card whose device files are `nodes` ("/dev/dri/card0"). `proc` is where that file
    /// system is mounted.
    DRMClientFiles(const std::string& proc, std::vector<std::string> nodes);

    /// Hands over the fdinfo text of each descriptor that leads to the card and belongs to a
    /// process of this user.
    void forEach(const std::function<void(std::string_view fdinfo)>& take);

private:
    struct File {
        std::int32_t pid;
        std::string number;
    };
    void search();
    void searchProcess(std::int32_t pid);
    [[nodiscard]] bool leadsToCard(int folder, const std::string& path) const;

    FileDescriptor proc_;
    std::vector<std::string> nodes_;
    std::vector<File> files_;
    std::vector<std::int32_t> pids_;  ///< at the last pass, in order
    unsigned pass_ = 0;
};

}  // namespace zephrine
