// SPDX-License-Identifier: MIT
// What a panel does to the pictures of its items differs so much that each known one gets the form
// that it shows best. A panel is told by the command name of the process that owns the watcher.
#pragma once

#include "platform/qt/statusitem/host/HostBus.h"

namespace zephrine {

enum class HostForm {
    wideDoubled,  ///< keeps wide pictures wide and scales them to its height
    line,         ///< keeps wide pictures wide, but scales them to the height of one line of text
    wideFile,     ///< squeezes pixels that it is sent, but not a picture that it reads from a file
    labelled,     ///< squeezes pictures, but sets text beside them
    squares,      ///< squeezes whatever is not square
    multipliedSquares,  ///< the same, and takes colours as multiplied by their opacity already
    mixed,  ///< not known: squares, ascending, then a wide picture for those that take it
};

[[nodiscard]] HostForm formOfHost(const HostProcess& host);

/// Whether the panel squeezes the pictures of items, but leaves the windows in its tray of X11 as
/// wide as they ask to be.
[[nodiscard]] bool hasBetterTray(const HostProcess& host);

}  // namespace zephrine
