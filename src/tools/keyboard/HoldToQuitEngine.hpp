#pragma once

#include <cstdint>
#include <optional>

#include "platform/EventType.hpp"
#include "platform/Scheduler.hpp"
#include "ui/HUDCard.hpp"

namespace quorvane {

// Decides what ⌘Q does: nothing until it has been held for the whole hold time, then one quit.
// Fed every key and modifier event of the tool's tap and a tick while a hold is under way; it
// answers whether the event goes on and what the card shows.
class HoldToQuitEngine {
public:
    static constexpr std::uint16_t kQKeyCode = 12;
    static constexpr Seconds kDefaultHold{1.0};
    static constexpr const char* kSymbol = "command";
    static constexpr const char* kTitle = "Hold ⌘Q to Quit";

    enum class Action { none, show, hide, quit };
    struct Outcome {
        bool pass = true;
        Action action = Action::none;
    };

    explicit HoldToQuitEngine(Seconds hold = kDefaultHold) : hold_(hold) {}
    void setHold(Seconds hold) { hold_ = hold; }
    Seconds hold() const { return hold_; }

    // A key down, key up or modifier change. `autorepeat` marks the repeats of a held key.
    Outcome handle(EventType type, std::uint16_t keyCode, std::uint64_t flags, bool autorepeat,
                   Seconds now);
    // While holding: a card update, or the one quit once the hold time is reached.
    Outcome tick(Seconds now);

    bool isHolding() const { return start_.has_value() && !quitSent_; }
    // The card for the hold so far: its level fills from 0 to 1 over the hold time.
    HUDCard card(Seconds now) const;
    void reset();

private:
    Seconds hold_;
    std::optional<Seconds> start_;
    bool quitSent_ = false;
};

}  // namespace quorvane
