#include "support/AllocationCounter.hpp"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<int> activeCounters{0};
std::atomic<std::size_t> allocations{0};

}  // namespace

void* operator new(std::size_t size) {
    if (activeCounters.load(std::memory_order_relaxed) > 0) {
        allocations.fetch_add(1, std::memory_order_relaxed);
    }
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return ::operator new(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace quorvane {

AllocationCounter::AllocationCounter() {
    allocations.store(0);
    activeCounters.fetch_add(1);
}

AllocationCounter::~AllocationCounter() { activeCounters.fetch_sub(1); }

std::size_t AllocationCounter::count() const { return allocations.load(); }

}  // namespace quorvane
