// SPDX-License-Identifier: MIT
// Where a descriptor leads is asked of its link in /proc/PID/fd (proc_pid_fd(5)) before its fdinfo
// is opened: the driver behind an fdinfo may wake its card to answer, and that card may be another
// one, asleep. The link's text comes from the kernel's memory and never waits for a disk or server.
#include "platform/linux/gpu/DRMClientFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "platform/linux/processes/PidListing.h"

namespace zephrine {

DRMClientFiles::DRMClientFiles(const std::string& proc, std::vector<std::string> nodes)
    : proc_(::open(proc.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)), nodes_(std::move(nodes)) {}

void DRMClientFiles::forEach(const std::function<void(std::string_view)>& take) {
    search();
    std::array<char, 8192> buffer;
    for (const File& file : files_) {
        const std::string process = std::to_string(file.pid);
        if (!leadsToCard(proc_.get(), process + "/fd/" + file.number)) {
            continue;  // closed since; its process's next search drops it
        }
        const std::string path = process + "/fdinfo/" + file.number;
        const FileDescriptor fdinfo(::openat(proc_.get(), path.c_str(), O_RDONLY | O_CLOEXEC));
        if (const auto text = fdinfo ? fdinfo.read(buffer) : std::nullopt) {
            take(*text);
        }
    }
}

void DRMClientFiles::search() {
    constexpr unsigned kPassesPerSearch = 16;
    std::vector<std::int32_t> pids;
    listPids(proc_.get(), [&pids](std::int32_t pid) { pids.push_back(pid); });
    std::ranges::sort(pids);
    const unsigned turn = pass_++ % kPassesPerSearch;
    const auto isDue = [&](std::int32_t pid) {
        return static_cast<unsigned>(pid) % kPassesPerSearch == turn ||
               !std::ranges::binary_search(pids_, pid);
    };
    std::erase_if(files_, [&](const File& file) {
        return isDue(file.pid) || !std::ranges::binary_search(pids, file.pid);
    });
    for (const std::int32_t pid : pids) {
        if (isDue(pid)) {
            searchProcess(pid);
        }
    }
    pids_ = std::move(pids);
}

void DRMClientFiles::searchProcess(std::int32_t pid) {
    // A process that opens files without end must not fill the list nor hold up the search.
    constexpr int kMostDescriptors = 4096;
    constexpr int kMostFiles = 64;
    const std::string path = std::to_string(pid) + "/fd";
    const int opened = ::openat(proc_.get(), path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opened < 0 ? nullptr : ::fdopendir(opened),
                                                     ::closedir);
    if (!folder) {
        return;  // another user's, or gone
    }
    int descriptors = 0;
    int files = 0;
    while (const dirent* const entry = ::readdir(folder.get())) {
        if (++descriptors > kMostDescriptors || files == kMostFiles) {
            return;
        }
        if (leadsToCard(::dirfd(folder.get()), entry->d_name)) {
            files_.push_back({.pid = pid, .number = entry->d_name});
            ++files;
        }
    }
}

bool DRMClientFiles::leadsToCard(int folder, const std::string& path) const {
    std::array<char, 64> target;  // longer links lead elsewhere
    const ssize_t length = ::readlinkat(folder, path.c_str(), target.data(), target.size());
    const std::string_view link(target.data(), length < 0 ? 0 : static_cast<std::size_t>(length));
    return std::ranges::find(nodes_, link) != nodes_.end();
}

}  // namespace zephrine
