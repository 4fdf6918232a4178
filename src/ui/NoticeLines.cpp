#include "ui/NoticeLines.hpp"

namespace quorvane {

NoticeLines noticeLines(const std::string& title) {
    const auto lineBreak = title.find('\n');
    if (lineBreak == std::string::npos) {
        return {title, {}};
    }
    return {title.substr(0, lineBreak), title.substr(lineBreak + 1)};
}

}  // namespace quorvane
