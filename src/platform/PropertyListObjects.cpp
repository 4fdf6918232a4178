#include "platform/PropertyListObjects.hpp"

namespace quorvane {

std::optional<PreferenceValue> readPropertyList(const PropertyListObjects& objects,
                                                PropertyListObjects::Object object) {
    using Type = PropertyListObjects::Type;
    if (object == nullptr) {
        return std::nullopt;
    }
    switch (objects.type(object)) {
        case Type::boolean:
            // A Boolean of its own kind, so a stored Boolean never reads back as 0 or 1.
            return PreferenceValue(objects.boolean(object));
        case Type::number:
            // An unsigned value beyond the signed 64-bit range does not fit; it is read as a
            // real rather than wrapped to a negative number.
            if (!objects.isFloat(object)) {
                if (const auto integer = objects.integer(object)) {
                    return PreferenceValue(*integer);
                }
            }
            return PreferenceValue(objects.real(object));
        case Type::string:
            return PreferenceValue(objects.string(object));
        case Type::data:
            return PreferenceValue(objects.data(object));
        case Type::date:
            return PreferenceValue(PreferenceValue::Date{objects.date(object)});
        case Type::array: {
            PreferenceValue::Array result;
            for (const auto element : objects.elements(object)) {
                if (auto value = readPropertyList(objects, element)) {
                    result.push_back(std::move(*value));
                }
            }
            return PreferenceValue(std::move(result));
        }
        case Type::dictionary: {
            PreferenceValue::Dictionary result;
            for (const auto& [key, element] : objects.entries(object)) {
                // A property list may key a dictionary by anything; Quorvane's values are keyed
                // by text only, so other entries are left out.
                if (key == nullptr || objects.type(key) != Type::string) {
                    continue;
                }
                if (auto value = readPropertyList(objects, element)) {
                    result.insert_or_assign(objects.string(key), std::move(*value));
                }
            }
            return PreferenceValue(std::move(result));
        }
        case Type::other:
            break;
    }
    return std::nullopt;
}

PropertyListObjects::Owned makePropertyList(PropertyListObjects& objects,
                                            const PreferenceValue& value) {
    switch (value.kind()) {
        case PreferenceKind::boolean:
            return objects.makeBoolean(*value.boolean());
        case PreferenceKind::integer:
            return objects.makeInteger(*value.integer());
        case PreferenceKind::real:
            return objects.makeReal(*value.real());
        case PreferenceKind::string:
            return objects.makeString(*value.string());
        case PreferenceKind::data:
            return objects.makeData(*value.data());
        case PreferenceKind::date:
            return objects.makeDate(value.date()->secondsSinceReferenceDate);
        case PreferenceKind::array: {
            auto array = objects.makeArray();
            if (!array) {
                return nullptr;
            }
            for (const PreferenceValue& element : *value.array()) {
                if (const auto item = makePropertyList(objects, element)) {
                    objects.append(array.get(), item.get());
                }
            }
            return array;
        }
        case PreferenceKind::dictionary: {
            auto dictionary = objects.makeDictionary();
            if (!dictionary) {
                return nullptr;
            }
            for (const auto& [key, element] : *value.dictionary()) {
                const auto name = objects.makeString(key);
                const auto item = makePropertyList(objects, element);
                if (name && item) {
                    objects.setEntry(dictionary.get(), name.get(), item.get());
                }
            }
            return dictionary;
        }
    }
    return nullptr;
}

}  // namespace quorvane
