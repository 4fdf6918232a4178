#pragma once

#include "platform/Hashing.hpp"

namespace quorvane {

// Digests from CommonCrypto.
class MacHashing final : public Hashing {
public:
    Sha256::Digest sha256(std::span<const std::uint8_t> bytes) override;
};

}  // namespace quorvane
