#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/EventType.hpp"

namespace quorvane {

// Decides what becomes of one key event so that Home and End work as on a Windows PC: the
// start and end of the line, ⇧ to select, ⌘ for the whole document. The Mac's own shortcuts for
// those are ⌘ and the arrow keys, which every text view understands, so a Home press becomes
// an arrow press instead. The tool carries the answer out.
class HomeEndEngine {
public:
    static constexpr std::uint16_t kHome = 115;
    static constexpr std::uint16_t kEnd = 119;
    static constexpr std::uint16_t kLeftArrow = 123;
    static constexpr std::uint16_t kRightArrow = 124;
    static constexpr std::uint16_t kDownArrow = 125;
    static constexpr std::uint16_t kUpArrow = 126;
    // A real arrow press carries these two besides its modifiers; some apps look at them.
    static constexpr std::uint64_t kArrowFlags = 0x200000 | 0x800000;

    struct Press {
        std::uint16_t keyCode;
        std::uint64_t flags;
        friend bool operator==(const Press&, const Press&) = default;
    };
    struct Outcome {
        bool pass = true;
        // A whole key press to post in place of the swallowed key-down.
        std::optional<Press> press;
    };

    // `leftAlone`: the front app keeps its own Home and End.
    Outcome handle(EventType type, std::uint16_t keyCode, std::uint64_t flags, std::int64_t tag,
                   bool leftAlone);
    // Forgets which key-downs were swallowed (the tap went away).
    void reset() { swallowedDown_ = {}; }

private:
    // A key-up is swallowed only when its key-down was: a Home pressed before the tool started
    // or in an app that keeps its own must come up where it went down.
    std::array<bool, 2> swallowedDown_{};
};

}  // namespace quorvane
