#include "support/FakeMisuse.hpp"

#include <gtest/gtest.h>

namespace quorvane {

void reportFakeMisuse(std::string_view what) {
    ADD_FAILURE() << what;
}

}  // namespace quorvane
