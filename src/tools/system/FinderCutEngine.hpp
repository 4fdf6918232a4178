#pragma once

#include <cstdint>
#include <optional>

#include "platform/EventType.hpp"

namespace quorvane {

// When Finder's ⌘X becomes a cut of files: with Finder in front and no text being edited, ⌘X
// goes to Finder as ⌘C, and the next ⌘V as ⌥⌘V, Finder's own "Move Item Here". A copy made
// since (⌘C, or anything new on the clipboard) turns the pending cut back into a plain copy.
class FinderCutEngine {
public:
    static constexpr std::uint16_t kX = 7;
    static constexpr std::uint16_t kC = 8;
    static constexpr std::uint16_t kV = 9;

    // What to change in the key event before it goes on; nothing: it goes on unchanged.
    struct Rewrite {
        std::uint16_t keyCode = 0;
        std::uint64_t flags = 0;
        friend bool operator==(const Rewrite&, const Rewrite&) = default;
    };
    enum class Notice { none, cut, move };
    struct Outcome {
        std::optional<Rewrite> rewrite;
        Notice notice = Notice::none;
    };

    // Whether a key event needs the front app and the focus looked up: ⌘X, ⌘C, ⌘V.
    static bool concerns(EventType type, std::uint16_t keyCode, std::uint64_t flags);

    // `filesInFront`: Finder is in front and no text field has the focus.
    Outcome handle(EventType type, std::uint16_t keyCode, std::uint64_t flags, bool filesInFront,
                   std::int64_t changeCount);
    // The clipboard's change count once Finder has copied the cut files.
    void cutLanded(std::int64_t changeCount);

    bool hasPendingCut() const { return pending_; }
    void reset();

private:
    // The clipboard as Finder left it after the cut; unset until then.
    std::optional<std::int64_t> cutCount_;
    bool pending_ = false;
    bool rewriteXUp_ = false;
    bool rewriteVUp_ = false;
};

}  // namespace quorvane
