// SPDX-License-Identifier: MIT
// Sockets that have a path (unix(7)).
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {

/// A socket of `type` that is connected to whoever listens at `path`; none when nobody does.
FileDescriptor connectToSocket(const std::string& path, int type);

/// Whether somebody listens at `path`, even with a queue that is full at the moment.
bool hasListener(const std::string& path, int type);

/// A socket of `type`, not waiting for anything, that listens at `path`, where nothing may be yet;
/// none when that fails.
FileDescriptor listenAtSocket(const std::string& path, int type);

/// Whether the process at the other end belonged to `user` when it connected or listened.
bool isPeerOf(const FileDescriptor& socket, uid_t user);

}  // namespace zephrine
