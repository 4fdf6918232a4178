#include "support/AllocationCounter.hpp"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<int> counters{0};
std::atomic<std::size_t> allocations{0};

}  // namespace

// Every form that pairs with the replaced deletes is replaced, or a sanitizer sees its own
// allocation freed here.
void* operator new(std::size_t size) {
    if (counters.load(std::memory_order_relaxed) > 0) {
        allocations.fetch_add(1, std::memory_order_relaxed);
    }
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
    return ::operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return ::operator new(size, tag);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}

namespace quorvane {

AllocationCounter::AllocationCounter() {
    allocations = 0;
    ++counters;
}

AllocationCounter::~AllocationCounter() {
    --counters;
}

std::size_t AllocationCounter::count() const {
    return allocations;
}

}  // namespace quorvane
