#pragma once

#include <optional>

#include "base/Json.hpp"
#include "platform/PreferenceValue.hpp"

namespace quorvane {

// How a property-list value is written in a JSON preferences file. JSON has no data or date,
// so those are objects with one tagged member: {"$data": "<base64>"}, {"$date": <seconds since
// 2001>}. A dictionary that could be mistaken for a tag is wrapped as {"$dictionary": {...}}.
struct PreferenceJson {
    static Json encode(const PreferenceValue& value);
    // Nothing when the JSON holds something a property list cannot (null, a broken tag).
    static std::optional<PreferenceValue> decode(const Json& json);

private:
    static std::optional<PreferenceValue> decodeDictionary(const Json& json);
};

}  // namespace quorvane
