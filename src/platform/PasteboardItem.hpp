#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorvane {

// One item on a pasteboard: the same content offered in several forms, each under its type
// ("public.utf8-plain-text", "public.rtf", "public.png", …), in the order the writer offered
// them. Bytes are kept exactly, so a clipboard read this way can be written back unchanged.
struct PasteboardItem {
    struct Representation {
        std::string type;
        std::vector<std::uint8_t> bytes;

        friend bool operator==(const Representation&, const Representation&) = default;
    };

    std::vector<Representation> representations;

    // The bytes under `type`, or nullptr when the item does not offer it.
    const std::vector<std::uint8_t>* find(const std::string& type) const {
        for (const Representation& representation : representations) {
            if (representation.type == type) {
                return &representation.bytes;
            }
        }
        return nullptr;
    }

    friend bool operator==(const PasteboardItem&, const PasteboardItem&) = default;
};

}  // namespace quorvane
