// SPDX-License-Identifier: MIT
// Stands in for the C library's pthread_create in the whole test program: the limit itself does not
// hold for everybody who runs tests.
#include "platform/linux/ThreadShortage.h"

#include <dlfcn.h>
#include <pthread.h>

#include <atomic>
#include <cerrno>

namespace {

std::atomic<bool> isShort = false;

}  // namespace

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*),
                   void* argument) noexcept {
    if (isShort) {
        return EAGAIN;
    }
    static const auto create =
        reinterpret_cast<decltype(&pthread_create)>(::dlsym(RTLD_NEXT, "pthread_create"));
    return create(thread, attributes, start, argument);
}

namespace zephrine::testing {

ThreadShortage::ThreadShortage() {
    isShort = true;
}

ThreadShortage::~ThreadShortage() {
    isShort = false;
}

}  // namespace zephrine::testing
