// SPDX-License-Identifier: MIT
// What sway tells of its workspaces and windows: sway-ipc(7). In pixels of its layout, which are
// those of its X server as well.
#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QString>
#include <cstdint>
#include <optional>

namespace zephrine {

/// Whether every command was carried out, from the answer to RUN_COMMAND.
[[nodiscard]] bool hasSucceeded(const QByteArray& results);

/// Where windows may be on the workspace that has the focus, from the answer to GET_WORKSPACES.
[[nodiscard]] std::optional<QRect> focusedWorkspace(const QByteArray& workspaces);

/// Where the window of the X server is, from the answer to GET_TREE.
[[nodiscard]] std::optional<QRect> placeOfWindow(const QByteArray& tree, std::uint32_t window);

/// What windows cover that have a whole screen for themselves and can be seen, from the answer to
/// GET_TREE.
[[nodiscard]] QList<QRect> fullScreenAreas(const QByteArray& tree);

/// Whether sway is going to send events, from the answer to SUBSCRIBE.
[[nodiscard]] bool isSubscribed(const QByteArray& answer);

/// What has happened to a window or a workspace, as an event of sway names it; empty if nothing.
[[nodiscard]] QString changeOf(const QByteArray& event);

}  // namespace zephrine
