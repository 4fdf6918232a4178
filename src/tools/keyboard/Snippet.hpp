#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Json.hpp"
#include "base/Uuid.hpp"

namespace quorvane {

// A short code the user types and the text it turns into. Stored as a JSON object whose keys are
// the field names; the text may hold the placeholders "{date}", "{time}" and "{clipboard}".
struct Snippet {
    // Shorter codes would go off during ordinary typing.
    static constexpr std::size_t kMinimumTriggerLength = 2;

    Uuid id;
    std::string trigger;
    std::string text;

    // Characters (code points) of a text, as typing and erasing count them.
    static std::size_t characterCount(std::string_view text);
    // Appends the characters of UTF-8 text. Text may come from a hand-edited file or another
    // process: each ill-formed byte becomes U+FFFD, so it still counts as one character.
    static void appendCharacters(std::string_view text, std::vector<char32_t>& out);

    // Only usable snippets ever fire; the others are kept and shown so the user can finish them.
    bool isUsable() const {
        return characterCount(trigger) >= kMinimumTriggerLength && !text.empty();
    }

    Json toJson() const;
    // Nothing unless the object has a well-formed "id" and string "trigger" and "text".
    static std::optional<Snippet> fromJson(const Json& json);

    static Json listToJson(const std::vector<Snippet>& snippets);
    // Nothing when any element cannot be read: a damaged list is refused as a whole rather than
    // losing entries quietly.
    static std::optional<std::vector<Snippet>> listFromJson(const Json& json);

    friend bool operator==(const Snippet&, const Snippet&) = default;
};

}  // namespace quorvane
