// SPDX-License-Identifier: MIT
// To be preloaded into the program: the one file that ZEPHRINE_HANGS_AT names below /proc does not
// answer whoever opens it, as when another process holds the memory lock that the kernel needs to
// compose it.
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdlib>
#include <string_view>

extern "C" int openat(int folder, const char* path, int flags, ...) {
    const char* const hanging = std::getenv("ZEPHRINE_HANGS_AT");
    if (hanging != nullptr && std::string_view(path) == hanging) {
        constexpr std::string_view kSign = "waits for ever\n";
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, kSign.data(), kSign.size());
        for (;;) {
            ::pause();
        }
    }
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return static_cast<int>(::syscall(SYS_openat, folder, path, flags, mode));
}
