#pragma once

#include <cstddef>

namespace quorvane {

// Counts heap allocations made through operator new anywhere in the test program while a
// counter is alive. The replacement operators live in AllocationCounter.cpp, a translation unit
// of their own, so the compiler never sees them inlined next to allocations it tracks.
class AllocationCounter {
public:
    AllocationCounter();
    ~AllocationCounter();
    AllocationCounter(const AllocationCounter&) = delete;
    AllocationCounter& operator=(const AllocationCounter&) = delete;

    std::size_t count() const;
};

}  // namespace quorvane
