// SPDX-License-Identifier: MIT
// Finds the display to connect to before Qt tries: Qt ends the process where it cannot connect.
#pragma once

#include <QByteArray>
#include <optional>
#include <string>

namespace zephrine {

/// The Qt platform plugin that will reach the user's display; absent, with the reason on one line
/// in `whyNot`, when none will.
std::optional<QByteArray> findDesktop(std::string& whyNot);

/// Sets the environment so that Qt connects through `platform` and brings neither the desktop's
/// theme plug-ins nor parts that this program has no use for.
void prepareEnvironment(const QByteArray& platform);

}  // namespace zephrine
