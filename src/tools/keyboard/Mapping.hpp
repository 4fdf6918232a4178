#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Json.hpp"
#include "base/Uuid.hpp"
#include "tools/keyboard/Key.hpp"
#include "tools/keyboard/Keyboards.hpp"

namespace quorvane {

// One remapped key: pressing `from` on the chosen keyboards types `to`.
struct Mapping {
    Uuid id;
    Key from = Key::capsLock;
    Key to = Key::escape;
    Keyboards keyboards = Keyboards::all;

    Json toJson() const;
    static std::optional<Mapping> fromJson(const Json& json);

    // The stored list: a JSON array of objects, keys and keyboards by their case names.
    static std::string encode(const std::vector<Mapping>& mappings);
    // Nothing when any part of the text is not a list of mappings: a damaged list is not
    // half-read.
    static std::optional<std::vector<Mapping>> decode(std::string_view text);

    friend bool operator==(const Mapping&, const Mapping&) = default;
};

}  // namespace quorvane
