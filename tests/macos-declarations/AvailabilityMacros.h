// SPDX-License-Identifier: MIT
// GoogleTest asks this header which system it is compiled for.
#pragma once
#define MAC_OS_X_VERSION_MIN_REQUIRED 130000
