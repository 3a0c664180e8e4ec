// SPDX-License-Identifier: MIT
// Replaces the global operators; the array forms end up in these by default.
#include "platform/linux/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {
thread_local std::size_t allocations = 0;
}

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
    return ::operator new(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace zephrine::testing {

std::size_t allocationCount() {
    return allocations;
}

}  // namespace zephrine::testing
