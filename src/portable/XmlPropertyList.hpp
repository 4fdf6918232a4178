#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/PreferenceValue.hpp"

namespace quorvane {

// Reads the XML form of a property list, for systems without the platform's own reader.
// Anything malformed, truncated or nested too deeply is refused with a reason and an offset;
// the binary form is refused as such.
class XmlPropertyList {
public:
    static std::optional<PreferenceValue> parse(std::string_view text, std::string& error);
};

}  // namespace quorvane
