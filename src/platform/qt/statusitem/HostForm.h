// SPDX-License-Identifier: MIT
// What a panel does to the pictures of its items differs so much that each known one gets the form
// that it shows best. A panel is told by the command name of the process that owns the watcher.
#pragma once

#include <string_view>

namespace zephrine {

enum class HostForm {
    wideDoubled,  ///< keeps wide pictures wide and scales them to its height
    wideExact,    ///< keeps wide pictures wide and as large as they are
    squares,      ///< squeezes whatever is not square
    mixed,        ///< not known: squares, ascending, then a wide picture for those that take it
};

/// `command` is the process's name as the kernel keeps it, cut off after 15 bytes.
[[nodiscard]] HostForm formOfHost(std::string_view command);

}  // namespace zephrine
