#include "support/FakeMisuse.hpp"

#include <cstdio>
#include <cstdlib>

namespace quorvane {

// A benchmark that misuses a fake measures a broken program, so it stops at once.
void reportFakeMisuse(std::string_view what) {
    std::fprintf(stderr, "fake misused: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

}  // namespace quorvane
