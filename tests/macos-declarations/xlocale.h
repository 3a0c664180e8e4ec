// SPDX-License-Identifier: MIT
// The functions with a locale of their own that BSD's C library has and libc++ expects on this
// target, on top of those that glibc knows.
#pragma once
#include <locale.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <wchar.h>
#ifdef __cplusplus
extern "C" {
#endif
#define MB_CUR_MAX_L(locale) ((void)(locale), MB_CUR_MAX)
struct lconv* localeconv_l(locale_t locale);
int asprintf_l(char** text, locale_t locale, const char* format, ...);
int snprintf_l(char* text, size_t size, locale_t locale, const char* format, ...);
int sscanf_l(const char* text, locale_t locale, const char* format, ...);
int mbtowc_l(wchar_t* wide, const char* text, size_t size, locale_t locale);
int wctob_l(wint_t wide, locale_t locale);
wint_t btowc_l(int byte, locale_t locale);
size_t mbrlen_l(const char* text, size_t size, mbstate_t* state, locale_t locale);
size_t mbrtowc_l(wchar_t* wide, const char* text, size_t size, mbstate_t* state, locale_t locale);
size_t mbsnrtowcs_l(wchar_t* wide, const char** text, size_t bytes, size_t size, mbstate_t* state,
                    locale_t locale);
size_t mbsrtowcs_l(wchar_t* wide, const char** text, size_t size, mbstate_t* state,
                   locale_t locale);
size_t wcrtomb_l(char* text, wchar_t wide, mbstate_t* state, locale_t locale);
size_t wcsnrtombs_l(char* text, const wchar_t** wide, size_t count, size_t size, mbstate_t* state,
                    locale_t locale);
#ifdef __cplusplus
}
#endif
