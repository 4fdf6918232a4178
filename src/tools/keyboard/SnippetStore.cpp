#include "tools/keyboard/SnippetStore.hpp"

#include "base/JsonLimits.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

// Long texts are the point of snippets (letters, signatures, boilerplate), so the list may be
// far larger than the usual JSON file; only the nesting is as tight as anywhere.
constexpr JsonLimits kLimits{.maxDepth = 4, .maxBytes = std::size_t{1} << 30};

}  // namespace

std::vector<Snippet> SnippetStore::defaults() {
    return {
        {Uuid::random(), ";date", "{date}"},
        {Uuid::random(), ";time", "{time}"},
        {Uuid::random(), ";shrug", "¯\\_(ツ)_/¯"},
    };
}

std::string SnippetStore::encode(const std::vector<Snippet>& snippets) {
    return Snippet::listToJson(snippets).serialize();
}

std::optional<std::vector<Snippet>> SnippetStore::decode(std::string_view text,
                                                         std::string* error) {
    JsonError parseError;
    const auto json = Json::parse(text, &parseError, kLimits);
    if (!json) {
        if (error != nullptr) {
            *error = parseError.message + " at byte " + std::to_string(parseError.offset);
        }
        return std::nullopt;
    }
    auto snippets = Snippet::listFromJson(*json);
    if (!snippets && error != nullptr) {
        *error = "not a list of snippets, each with an \"id\", a \"trigger\" and a \"text\"";
    }
    return snippets;
}

SnippetStore::Loaded SnippetStore::load(const Preferences& preferences) {
    const auto data = preferences.data(kKey);
    if (!data) {
        const bool stored = preferences.kind(kKey).has_value();
        return {defaults(), !stored, stored};
    }
    const std::string_view text(reinterpret_cast<const char*>(data->data()), data->size());
    if (auto snippets = decode(text)) {
        return {std::move(*snippets), true, true};
    }
    return {defaults(), false, true};
}

void SnippetStore::save(Preferences& preferences, const std::vector<Snippet>& snippets) {
    const std::string text = encode(snippets);
    preferences.set(kKey, PreferenceValue::Data(text.begin(), text.end()));
}

}  // namespace quorvane
