#include "portable/PortableProcessFacts.hpp"

#include <algorithm>

namespace quorvane {

int PortableProcessFacts::compareNames(const std::string& a, const std::string& b) {
    const auto fold = [](char c) {
        return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    };
    const auto [ai, bi] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                        [&](char x, char y) { return fold(x) == fold(y); });
    if (ai == a.end()) {
        return bi == b.end() ? 0 : -1;
    }
    if (bi == b.end()) {
        return 1;
    }
    return fold(*ai) < fold(*bi) ? -1 : 1;
}

}  // namespace quorvane
