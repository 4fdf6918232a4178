#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

// Text with **double asterisks** around the parts shown in bold, as the permission steps are
// written, split into the runs a renderer draws.
struct StyledText {
    struct Run {
        std::string text;
        bool bold = false;
        friend bool operator==(const Run&, const Run&) = default;
    };

    // An asterisk pair left open is shown as written rather than swallowing the rest.
    static std::vector<Run> parse(std::string_view text);
};

}  // namespace quorvane
