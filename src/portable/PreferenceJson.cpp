#include "portable/PreferenceJson.hpp"

#include "base/Base64.hpp"

namespace quorvane {

namespace {

constexpr const char* kDataTag = "$data";
constexpr const char* kDateTag = "$date";
constexpr const char* kDictionaryTag = "$dictionary";

bool looksLikeTag(const PreferenceValue::Dictionary& dictionary) {
    if (dictionary.size() != 1) {
        return false;
    }
    const auto& key = dictionary.begin()->first;
    return key == kDataTag || key == kDateTag || key == kDictionaryTag;
}

Json taggedObject(const char* tag, Json value) {
    Json object = Json::emptyObject();
    object.set(tag, std::move(value));
    return object;
}

}  // namespace

Json PreferenceJson::encode(const PreferenceValue& value) {
    switch (value.kind()) {
        case PreferenceKind::boolean:
            return Json(*value.boolean());
        case PreferenceKind::integer:
            return Json(*value.integer());
        case PreferenceKind::real:
            return Json(*value.real());
        case PreferenceKind::string:
            return Json(*value.string());
        case PreferenceKind::data:
            return taggedObject(kDataTag, Json(base64::encode(*value.data())));
        case PreferenceKind::date:
            return taggedObject(kDateTag, Json(value.date()->secondsSinceReferenceDate));
        case PreferenceKind::array: {
            Json array = Json::emptyArray();
            for (const auto& element : *value.array()) {
                array.push(encode(element));
            }
            return array;
        }
        case PreferenceKind::dictionary: {
            Json object = Json::emptyObject();
            for (const auto& [key, element] : *value.dictionary()) {
                object.set(key, encode(element));
            }
            return looksLikeTag(*value.dictionary())
                       ? taggedObject(kDictionaryTag, std::move(object))
                       : object;
        }
    }
    return {};
}

std::optional<PreferenceValue> PreferenceJson::decode(const Json& json) {
    switch (json.kind()) {
        case Json::Kind::null:
            return std::nullopt;
        case Json::Kind::boolean:
            return PreferenceValue(*json.boolean());
        case Json::Kind::integer:
            return PreferenceValue(*json.integer());
        case Json::Kind::real:
            return PreferenceValue(*json.number());
        case Json::Kind::string:
            return PreferenceValue(*json.string());
        case Json::Kind::array: {
            PreferenceValue::Array array;
            for (const auto& element : *json.array()) {
                auto decoded = decode(element);
                if (!decoded) {
                    return std::nullopt;
                }
                array.push_back(std::move(*decoded));
            }
            return PreferenceValue(std::move(array));
        }
        case Json::Kind::object: {
            const auto& object = *json.object();
            if (object.size() == 1) {
                const auto& [tag, inner] = *object.begin();
                if (tag == kDataTag) {
                    const auto* text = inner.string();
                    auto bytes = text ? base64::decode(*text) : std::nullopt;
                    return bytes ? std::optional(PreferenceValue(std::move(*bytes))) : std::nullopt;
                }
                if (tag == kDateTag) {
                    const auto seconds = inner.number();
                    return seconds ? std::optional(PreferenceValue(PreferenceValue::Date{*seconds}))
                                   : std::nullopt;
                }
                if (tag == kDictionaryTag) {
                    return inner.object() ? decodeDictionary(inner) : std::nullopt;
                }
            }
            return decodeDictionary(json);
        }
    }
    return std::nullopt;
}

std::optional<PreferenceValue> PreferenceJson::decodeDictionary(const Json& json) {
    PreferenceValue::Dictionary dictionary;
    for (const auto& [key, element] : *json.object()) {
        auto decoded = decode(element);
        if (!decoded) {
            return std::nullopt;
        }
        dictionary.emplace(key, std::move(*decoded));
    }
    return PreferenceValue(std::move(dictionary));
}

}  // namespace quorvane
