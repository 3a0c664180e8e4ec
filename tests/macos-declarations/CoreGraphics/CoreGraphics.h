// SPDX-License-Identifier: MIT
// The window server's session.
#pragma once
#include <CoreFoundation/CoreFoundation.h>
#ifdef __cplusplus
extern "C" {
#endif
CFDictionaryRef CGSessionCopyCurrentDictionary(void) __attribute__((cf_returns_retained));
#ifdef __cplusplus
}
#endif
