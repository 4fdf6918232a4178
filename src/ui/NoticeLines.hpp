#pragma once

#include <string>

namespace quorvane {

// A notice card's title may carry a detail after its first line break ("Updater tried to jump
// in front\nYou're still in Editor."). The card shows the headline and the detail as separate
// lines, the detail smaller, each wrapping within the card instead of being clipped.
struct NoticeLines {
    std::string headline;
    std::string detail;  // empty when the title is one line
};
NoticeLines noticeLines(const std::string& title);

}  // namespace quorvane
