#pragma once

#include "platform/Hashing.hpp"

namespace quorvane {

class PortableHashing : public Hashing {
public:
    Sha256::Digest sha256(std::span<const std::uint8_t> bytes) override {
        return Sha256::of(bytes);
    }
};

}  // namespace quorvane
