#include "tools/keyboard/Snippet.hpp"

#include "base/Utf8.hpp"

namespace quorvane {

std::size_t Snippet::characterCount(std::string_view text) {
    std::vector<char32_t> characters;
    appendCharacters(text, characters);
    return characters.size();
}

void Snippet::appendCharacters(std::string_view text, std::vector<char32_t>& out) {
    while (!text.empty()) {
        const std::size_t length = utf8::sequenceLength(text);
        if (length == 0) {
            out.push_back(0xFFFD);
            text.remove_prefix(1);
            continue;
        }
        const auto lead = static_cast<unsigned char>(text[0]);
        // The lead byte keeps 7 bits alone, then one bit fewer for each byte that follows it.
        char32_t value = length == 1 ? lead : lead & (0x7Fu >> length);
        for (std::size_t i = 1; i < length; ++i) {
            value = (value << 6) | (static_cast<unsigned char>(text[i]) & 0x3Fu);
        }
        out.push_back(value);
        text.remove_prefix(length);
    }
}

Json Snippet::toJson() const {
    Json json = Json::emptyObject();
    json.set("id", Json(id.text()));
    json.set("trigger", Json(trigger));
    json.set("text", Json(text));
    return json;
}

std::optional<Snippet> Snippet::fromJson(const Json& json) {
    const Json* id = json.find("id");
    const Json* trigger = json.find("trigger");
    const Json* text = json.find("text");
    if (id == nullptr || trigger == nullptr || text == nullptr || id->string() == nullptr ||
        trigger->string() == nullptr || text->string() == nullptr) {
        return std::nullopt;
    }
    const auto uuid = Uuid::parse(*id->string());
    if (!uuid) {
        return std::nullopt;
    }
    return Snippet{*uuid, *trigger->string(), *text->string()};
}

Json Snippet::listToJson(const std::vector<Snippet>& snippets) {
    Json list = Json::emptyArray();
    for (const auto& snippet : snippets) {
        list.push(snippet.toJson());
    }
    return list;
}

std::optional<std::vector<Snippet>> Snippet::listFromJson(const Json& json) {
    const Json::Array* array = json.array();
    if (array == nullptr) {
        return std::nullopt;
    }
    std::vector<Snippet> snippets;
    snippets.reserve(array->size());
    for (const Json& element : *array) {
        auto snippet = fromJson(element);
        if (!snippet) {
            return std::nullopt;
        }
        snippets.push_back(std::move(*snippet));
    }
    return snippets;
}

}  // namespace quorvane
