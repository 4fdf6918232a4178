#pragma once

#include <cstddef>

namespace quorvane {

// Counts heap allocations made through operator new anywhere in the test program while it is
// alive. The replaced operators are in AllocationCounter.cpp, a translation unit of their own, so
// the compiler never sees them inlined next to the allocations it tracks.
class AllocationCounter {
public:
    AllocationCounter();
    ~AllocationCounter();
    std::size_t count() const;
};

}  // namespace quorvane
