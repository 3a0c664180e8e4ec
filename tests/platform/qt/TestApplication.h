// SPDX-License-Identifier: MIT
// The one application object of this test program: there can be only one in a process.
#pragma once

#include "platform/qt/QtApplication.h"

namespace zephrine {

QtApplication& testApplication();

}  // namespace zephrine
