#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/PreferenceValue.hpp"

namespace quorvane {

// One platform's property-list objects (Core Foundation's on a Mac), reached one call at a
// time: what an object is and holds, and how a new one is made. The rules that turn them into
// PreferenceValues and back are portable (readPropertyList, makePropertyList).
class PropertyListObjects {
public:
    // Borrowed: valid while the object it came from is.
    using Object = const void*;
    // Made here, and released when the last holder lets go; empty when making it failed.
    using Owned = std::shared_ptr<const void>;
    enum class Type { boolean, number, string, data, date, array, dictionary, other };

    virtual ~PropertyListObjects() = default;

    virtual Type type(Object object) const = 0;
    virtual bool boolean(Object object) const = 0;
    // Whether a number was stored as a floating-point value.
    virtual bool isFloat(Object object) const = 0;
    // Nothing when the number is not exactly a signed 64-bit integer.
    virtual std::optional<std::int64_t> integer(Object object) const = 0;
    virtual double real(Object object) const = 0;
    virtual std::string string(Object object) const = 0;
    virtual PreferenceValue::Data data(Object object) const = 0;
    // Seconds since 2001-01-01 00:00:00 UTC.
    virtual double date(Object object) const = 0;
    virtual std::vector<Object> elements(Object array) const = 0;
    virtual std::vector<std::pair<Object, Object>> entries(Object dictionary) const = 0;

    virtual Owned makeBoolean(bool value) = 0;
    virtual Owned makeInteger(std::int64_t value) = 0;
    virtual Owned makeReal(double value) = 0;
    // Empty for text that is not UTF-8.
    virtual Owned makeString(const std::string& value) = 0;
    virtual Owned makeData(const PreferenceValue::Data& value) = 0;
    virtual Owned makeDate(double secondsSinceReferenceDate) = 0;
    virtual Owned makeArray() = 0;
    virtual Owned makeDictionary() = 0;
    // The containers keep their own references to what is put in them.
    virtual void append(Object array, Object element) = 0;
    virtual void setEntry(Object dictionary, Object key, Object value) = 0;
};

// Nothing for a null object or one of a kind a property list cannot hold; such elements and
// entries are left out of arrays and dictionaries.
std::optional<PreferenceValue> readPropertyList(const PropertyListObjects& objects,
                                                PropertyListObjects::Object object);
// Empty when the value cannot be expressed (text that is not UTF-8); elements of that kind
// are left out of arrays and dictionaries.
PropertyListObjects::Owned makePropertyList(PropertyListObjects& objects,
                                            const PreferenceValue& value);

}  // namespace quorvane
