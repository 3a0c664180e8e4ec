// SPDX-License-Identifier: MIT
// Replaces the global operators: all of them, so that none meets another allocator's memory.
#include "platform/linux/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {
thread_local std::size_t allocations = 0;
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
    if (void* const memory = ::operator new(size, std::nothrow)) {
        return memory;
    }
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
    return ::operator new(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return ::operator new(size, tag);
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
