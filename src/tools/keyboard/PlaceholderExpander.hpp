#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quorvane {

// Fills in a snippet's placeholders: "{date}", then "{time}", then "{clipboard}", each at every
// place it occurs. The values come from outside (the user's locale, the pasteboard), and each is
// asked for only when the text needs it.
struct PlaceholderExpander {
    struct Values {
        std::function<std::string()> date;
        std::function<std::string()> time;
        std::function<std::string()> clipboard;
    };

    static std::string expand(std::string_view text, const Values& values);
};

}  // namespace quorvane
