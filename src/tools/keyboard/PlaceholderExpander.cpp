#include "tools/keyboard/PlaceholderExpander.hpp"

#include <utility>

namespace quorvane {

namespace {

void replaceAll(std::string& text, std::string_view placeholder,
                const std::function<std::string()>& value) {
    std::size_t at = text.find(placeholder);
    if (at == std::string::npos) {
        return;
    }
    const std::string replacement = value ? value() : std::string();
    std::string result;
    std::size_t from = 0;
    for (; at != std::string::npos; at = text.find(placeholder, from)) {
        result.append(text, from, at - from).append(replacement);
        from = at + placeholder.size();
    }
    result.append(text, from);
    text = std::move(result);
}

}  // namespace

std::string PlaceholderExpander::expand(std::string_view text, const Values& values) {
    std::string result(text);
    // In this order, so that a clipboard holding "{date}" is pasted as it is.
    replaceAll(result, "{date}", values.date);
    replaceAll(result, "{time}", values.time);
    replaceAll(result, "{clipboard}", values.clipboard);
    return result;
}

}  // namespace quorvane
