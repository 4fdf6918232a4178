#include "tools/system/FinderCutEngine.hpp"

#include "platform/EventField.hpp"

namespace quorvane {

bool FinderCutEngine::concerns(EventType type, std::uint16_t keyCode, std::uint64_t flags) {
    if (type != EventType::keyDown && type != EventType::keyUp) {
        return false;
    }
    if (keyCode != kX && keyCode != kC && keyCode != kV) {
        return false;
    }
    // Key ups are rewritten to match their key downs, whatever is held by then.
    return type == EventType::keyUp || (flags & modifierFlag::mask) == modifierFlag::command;
}

FinderCutEngine::Outcome FinderCutEngine::handle(EventType type, std::uint16_t keyCode,
                                                 std::uint64_t flags, bool filesInFront,
                                                 std::int64_t changeCount) {
    if (type == EventType::keyUp) {
        if (keyCode == kX && rewriteXUp_) {
            rewriteXUp_ = false;
            return {Rewrite{kC, flags}, Notice::none};
        }
        if (keyCode == kV && rewriteVUp_) {
            rewriteVUp_ = false;
            return {Rewrite{kV, flags | modifierFlag::option}, Notice::none};
        }
        return {};
    }
    if (type != EventType::keyDown || !filesInFront ||
        (flags & modifierFlag::mask) != modifierFlag::command) {
        return {};
    }
    switch (keyCode) {
        case kX:
            pending_ = true;
            cutCount_.reset();
            rewriteXUp_ = true;
            return {Rewrite{kC, flags}, Notice::cut};
        case kC:
            reset();
            return {};
        case kV: {
            // Something copied since the cut means the user wants that pasted, not our files moved.
            const bool stillOurs = pending_ && (!cutCount_ || *cutCount_ == changeCount);
            reset();
            if (!stillOurs) {
                return {};
            }
            rewriteVUp_ = true;
            return {Rewrite{kV, flags | modifierFlag::option}, Notice::move};
        }
        default:
            return {};
    }
}

void FinderCutEngine::cutLanded(std::int64_t changeCount) {
    if (pending_) {
        cutCount_ = changeCount;
    }
}

void FinderCutEngine::reset() {
    pending_ = false;
    cutCount_.reset();
}

}  // namespace quorvane
