// SPDX-License-Identifier: MIT
// GoogleTest asks this header which system it is compiled for.
#pragma once
#define TARGET_OS_MAC 1
#define TARGET_OS_OSX 1
#define TARGET_OS_IPHONE 0
