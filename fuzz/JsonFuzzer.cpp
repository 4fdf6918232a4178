// Feeds arbitrary bytes to the JSON reader. Whatever it accepts must write out in both layouts
// as text it accepts again as the same value, and writing that again must give the same bytes:
// every file Quorvane keeps is read back from what it wrote.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/Json.hpp"

using quorvane::Json;
using quorvane::JsonError;

namespace {

void check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    JsonError error;
    const auto value = Json::parse(text, &error);
    if (!value) {
        check(error.offset <= size && !error.message.empty());
        return 0;
    }
    for (const auto layout : {Json::Layout::compact, Json::Layout::pretty}) {
        const std::string written = value->serialize(layout);
        const auto reread = Json::parse(written);
        check(reread.has_value() && *reread == *value);
        check(reread->serialize(layout) == written);
    }
    return 0;
}
