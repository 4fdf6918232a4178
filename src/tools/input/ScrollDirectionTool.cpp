#include "tools/input/ScrollDirectionTool.hpp"

#include "platform/EventField.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

ScrollDirectionTool::ScrollDirectionTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      reversal_(ScrollReversal::read(platform.preferences)) {}

void ScrollDirectionTool::start() {
    tap_.reset();
    tap_ = EventTap::create(platform_.events, {EventType::scrollWheel},
                            [this](EventType, Event& event) { return handle(event); });
    publish();
}

void ScrollDirectionTool::stop() {
    tap_.reset();
    publish();
}

bool ScrollDirectionTool::handle(Event& event) {
    const std::int64_t tag = event.integerField(eventField::sourceUserData);
    // Smooth scrolling's glide already goes the chosen way, and a reversed event that comes
    // round again must not turn back.
    if (tag == ownEventTag::scroll || tag == ScrollReversal::kReversedTag) {
        return true;
    }
    if (reversal_.applies(event)) {
        ScrollReversal::reverse(event);
    }
    return true;
}

void ScrollDirectionTool::setReverseMouse(bool on) {
    reversal_.reverseMouse = on;
    platform_.preferences.set(ScrollReversal::kReverseMouseKey, on);
    publish();
}

void ScrollDirectionTool::setReverseTrackpad(bool on) {
    reversal_.reverseTrackpad = on;
    platform_.preferences.set(ScrollReversal::kReverseTrackpadKey, on);
    publish();
}

}  // namespace quorvane
