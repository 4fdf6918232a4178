#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/AccessibilityValue.hpp"

namespace quorvane {

// The objects an accessibility call hands over (Core Foundation's on a Mac), read one call at
// a time. Which of them Quorvane reads, and as what, is decided in readAccessibilityValue.
class AccessibilityObjects {
public:
    // Borrowed: valid while the object it came from is.
    using Object = const void*;
    // A struct is an AXValue wrapping a point, size, rectangle or range.
    enum class Type { element, structValue, string, url, boolean, number, array, other };

    virtual ~AccessibilityObjects() = default;

    virtual Type type(Object object) const = 0;
    virtual Element element(Object object) const = 0;
    // The AXValueType number of a struct, and its fields copied into `bytes`; false when the
    // struct is not of that type.
    virtual std::uint32_t structType(Object object) const = 0;
    virtual bool readStruct(Object object, std::uint32_t type, void* bytes) const = 0;
    virtual std::string string(Object object) const = 0;
    // A URL's text ("file:///Applications/Mail.app/").
    virtual std::string urlString(Object object) const = 0;
    virtual bool boolean(Object object) const = 0;
    virtual double number(Object object) const = 0;
    virtual std::vector<Object> elements(Object array) const = 0;
};

// Nothing for a null object or a kind Quorvane never reads (a date, an AXError value). Numbers
// read as doubles; a URL as its text (the Dock's items name their application by one); of an
// array only its elements are kept.
std::optional<AccessibilityValue> readAccessibilityValue(const AccessibilityObjects& objects,
                                                         AccessibilityObjects::Object object);
// What a Copy call answers: its failure as it is, or else the value it returned, where nothing
// or a kind Quorvane never reads is no value (Accessibility::kNoValue).
std::int32_t readCopiedValue(std::int32_t status, const AccessibilityObjects& objects,
                             AccessibilityObjects::Object object, AccessibilityValue& value);

}  // namespace quorvane
