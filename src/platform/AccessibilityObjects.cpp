#include "platform/AccessibilityObjects.hpp"

#include "platform/Accessibility.hpp"
#include "platform/AccessibilityStructType.hpp"

namespace quorvane {

std::optional<AccessibilityValue> readAccessibilityValue(const AccessibilityObjects& objects,
                                                         AccessibilityObjects::Object object) {
    using Type = AccessibilityObjects::Type;
    if (object == nullptr) {
        return std::nullopt;
    }
    switch (objects.type(object)) {
        case Type::element:
            return objects.element(object);
        case Type::structValue: {
            const std::uint32_t type = objects.structType(object);
            auto value = emptyStruct(type);
            if (!value || !objects.readStruct(object, type, structBytes(*value))) {
                return std::nullopt;
            }
            return value;
        }
        case Type::string:
            return objects.string(object);
        case Type::url:
            return objects.urlString(object);
        case Type::boolean:
            return objects.boolean(object);
        case Type::number:
            return objects.number(object);
        case Type::array: {
            // Lists Quorvane reads (windows, children) hold elements; anything else is left out.
            std::vector<Element> elements;
            for (const auto item : objects.elements(object)) {
                if (item != nullptr && objects.type(item) == Type::element) {
                    elements.push_back(objects.element(item));
                }
            }
            return elements;
        }
        case Type::other:
            break;
    }
    return std::nullopt;
}

std::int32_t readCopiedValue(std::int32_t status, const AccessibilityObjects& objects,
                             AccessibilityObjects::Object object, AccessibilityValue& value) {
    if (status != Accessibility::kSuccess) {
        return status;
    }
    auto read = readAccessibilityValue(objects, object);
    if (!read) {
        return Accessibility::kNoValue;
    }
    value = std::move(*read);
    return Accessibility::kSuccess;
}

}  // namespace quorvane
