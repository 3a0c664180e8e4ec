// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/processes/ProcessName.h"

#include <climits>

namespace zephrine {

std::string_view completedProcessName(std::string_view comm, std::string_view cmdline) {
    const std::size_t end = cmdline.find('\0');
    if (comm.size() != kLongestComm || end == std::string_view::npos) {
        return comm;
    }
    // Programs that rewrite their title put all arguments into the first word, blanks between.
    const std::string_view word = cmdline.substr(0, end);
    const std::string_view path = word.substr(0, word.find(" -"));
    const std::size_t slash = path.rfind('/');
    const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
    return name.starts_with(comm) && name.size() <= NAME_MAX ? name : comm;
}

}  // namespace zephrine
