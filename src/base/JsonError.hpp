#pragma once

#include <cstddef>
#include <string>

namespace quorvane {

// Why a JSON text was refused, and where: `offset` is the byte at which the problem was found,
// or the text's length when it ended too soon.
struct JsonError {
    std::size_t offset = 0;
    std::string message;
};

}  // namespace quorvane
