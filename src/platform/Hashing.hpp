#pragma once

#include <span>

#include "base/Sha256.hpp"

namespace quorvane {

// Cryptographic digests: the system's own library where there is one.
class Hashing {
public:
    virtual ~Hashing() = default;

    virtual Sha256::Digest sha256(std::span<const std::uint8_t> bytes) = 0;
};

}  // namespace quorvane
