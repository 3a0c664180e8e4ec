// SPDX-License-Identifier: MIT
// The icons that are built into the program.
#pragma once

#include <QIcon>
#include <QString>

namespace zephrine {

/// The icon called `name` with all its sizes; a null icon when there is none.
QIcon builtInIcon(const QString& name);

}  // namespace zephrine
