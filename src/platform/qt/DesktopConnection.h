// SPDX-License-Identifier: MIT
// Finds the display to connect to before Qt tries: Qt ends the process where it cannot connect.
#pragma once

#include <QByteArray>
#include <variant>

#include "platform/Platform.h"

namespace zephrine {

/// The name of the Qt platform plug-in that will reach the user's display.
std::variant<QByteArray, NoDesktop> findDesktop();

/// Sets the environment so that Qt connects through `platform` and brings neither the desktop's
/// theme plug-ins nor parts that this program has no use for.
void prepareEnvironment(const QByteArray& platform);

}  // namespace zephrine
