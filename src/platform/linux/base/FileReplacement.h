// SPDX-License-Identifier: MIT
// Writing a small file so that whoever reads it, at whatever moment and after whatever crash, finds
// the old contents or the new ones, whole.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace zephrine {

/// Where `path` leads when symbolic links at its end are followed, whether or not anything is
/// there; absent when they go round in circles or cannot be read.
std::optional<std::string> followLinks(std::string path);

/// Gives the file at `path` new contents and the mode 0600; missing folders are made with 0700. A
/// symbolic link stays and the file that it leads to is replaced. Returns what went wrong, with the
/// old file as it was, also when another process is replacing the file right now; no error when
/// nothing did.
[[nodiscard]] std::error_code replaceFile(const std::string& path, std::string_view contents);

/// Renames the file at `path` to a free name beside it (".corrupt", ".corrupt-2", …).
bool moveFileAside(const std::string& path);

}  // namespace zephrine
