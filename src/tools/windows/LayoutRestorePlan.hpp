#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/Rect.hpp"
#include "tools/windows/DisplayLayout.hpp"
#include "tools/windows/WindowRecord.hpp"

namespace quorvane {

// Which of the windows open now go where, to bring back a saved arrangement. Windows are
// matched within their application: by title first, then the rest in order, so two untitled
// windows of one app still both find their places. Saved windows of applications that are not
// running are left out; so are windows already where they belong. Every frame is kept inside
// the usable area of the display it lands on, since the arrangement may be older than a
// change of resolution or Dock position.
struct LayoutRestorePlan {
    struct Move {
        std::size_t window;  // index into the open windows
        Rect frame;
        friend bool operator==(const Move&, const Move&) = default;
    };

    // The applications of a saved arrangement that are not running, each once, in order.
    static std::vector<std::string> appsToLaunch(const std::vector<WindowRecord>& saved,
                                                 const std::vector<std::string>& running);

    static std::vector<Move> make(const std::vector<WindowRecord>& saved,
                                  const std::vector<WindowRecord>& open,
                                  const DisplayLayout& displays);
};

}  // namespace quorvane
