// SPDX-License-Identifier: MIT
// The types of the Objective-C runtime. BOOL is a real bool on arm64 and a signed char on x86_64,
// where a C++ bool and a BOOL are not the same thing.
#pragma once
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
typedef struct objc_class* Class;
struct objc_object {
    Class isa;
};
typedef struct objc_object* id;
typedef struct objc_selector* SEL;
#if defined(__aarch64__)
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#ifndef nil
#define nil nullptr
#define Nil nullptr
#endif
