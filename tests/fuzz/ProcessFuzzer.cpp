// SPDX-License-Identifier: MIT
// Any text in the place of the files of /proc/PID, seeds in tests/data/linux/process: what is found
// lies within the text, a name is the kernel's or goes on from it, and no pid is out of range.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/Trap.h"
#include "platform/linux/processes/PidListing.h"
#include "platform/linux/processes/ProcPidMemory.h"
#include "platform/linux/processes/ProcPidStat.h"
#include "platform/linux/processes/ProcessName.h"

using namespace zephrine;

namespace {

bool liesWithin(std::string_view part, std::string_view text) {
    return part.data() >= text.data() && part.data() + part.size() <= text.data() + text.size();
}

void checkPid(std::optional<std::int32_t> pid) {
    constexpr std::int32_t kPidLimit = 4'194'304;
    trapUnless(!pid || (*pid >= 1 && *pid <= kPidLimit));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const std::string_view text(data, size);
    if (const auto stat = parseProcPidStat(text)) {
        trapUnless(liesWithin(stat->comm, text));
        const std::string_view name = completedProcessName(stat->comm, text);
        trapUnless(name == stat->comm || name.starts_with(stat->comm));
        trapUnless(name == stat->comm || name.find_first_of({"\0/", 2}) == std::string_view::npos);
    }
    const std::string_view comm = text.substr(0, kLongestComm);
    trapUnless(completedProcessName(comm, text.substr(comm.size())).starts_with(comm));
    anonymousPages(text);
    const auto bytes = anonymousAndSwappedBytes(text);
    trapUnless(!bytes || text.find("RssAnon:") != std::string_view::npos);
    trapUnless(!swapInUse(text) || text.find('\n') != text.rfind('\n'));
    checkPid(newestPid(text));
    checkPid(pidFromName(text));
    return 0;
}
