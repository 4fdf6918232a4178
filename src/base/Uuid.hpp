#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

// A 128-bit identifier, written the way the platform writes its own:
// "E621E1F8-C36C-495A-93FC-0C247A3E6E5F".
class Uuid {
public:
    using Bytes = std::array<std::uint8_t, 16>;

    // The nil identifier, all zero.
    Uuid() = default;
    explicit Uuid(const Bytes& bytes) : bytes_(bytes) {}

    // A version 4 (random) identifier. The generator is seeded once per thread from
    // std::random_device but is not a cryptographic one: these name things, they guard nothing.
    static Uuid random();

    // The 8-4-4-4-12 hexadecimal form, in either case; nothing else.
    static std::optional<Uuid> parse(std::string_view text);

    std::string text() const;
    const Bytes& bytes() const { return bytes_; }

    friend bool operator==(const Uuid&, const Uuid&) = default;
    friend bool operator<(const Uuid& a, const Uuid& b) { return a.bytes_ < b.bytes_; }

private:
    Bytes bytes_{};
};

}  // namespace quorvane

template <>
struct std::hash<quorvane::Uuid> {
    std::size_t operator()(const quorvane::Uuid& uuid) const noexcept;
};
