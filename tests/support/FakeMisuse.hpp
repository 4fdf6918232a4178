#pragma once

#include <string_view>

namespace quorvane {

// How a fake says it was called in a way the real system refuses (an object used after it was
// destroyed, say). Much of what calls fakes runs in destructors and other noexcept teardown,
// where a thrown exception ends the whole test program; this fails the running test with the
// message instead, and the fake answers with an error status.
void reportFakeMisuse(std::string_view what);

}  // namespace quorvane
