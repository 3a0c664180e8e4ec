// SPDX-License-Identifier: MIT
// What sway tells of its workspaces and windows: sway-ipc(7). In pixels of its layout, which are
// those of its X server as well.
#pragma once

#include <QByteArray>
#include <QRect>
#include <cstdint>
#include <optional>

namespace zephrine {

/// Whether every command was carried out, from the answer to RUN_COMMAND.
[[nodiscard]] bool hasSucceeded(const QByteArray& results);

/// Where windows may be on the workspace that has the focus, from the answer to GET_WORKSPACES.
[[nodiscard]] std::optional<QRect> focusedWorkspace(const QByteArray& workspaces);

/// Where the window of the X server is, from the answer to GET_TREE.
[[nodiscard]] std::optional<QRect> placeOfWindow(const QByteArray& tree, std::uint32_t window);

}  // namespace zephrine
