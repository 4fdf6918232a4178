#include "tools/system/FinderCutTool.hpp"

#include "input/FocusedText.hpp"
#include "input/InputServices.hpp"
#include "platform/EventField.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"

namespace quorvane {

FinderCutTool::FinderCutTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    showNotice_ = platform_.preferences.boolean(kShowNoticeKey).value_or(true);
}

void FinderCutTool::start() {
    stop();
    const auto front = platform_.workspace.frontmostApplication();
    finderInFront_ = front && front->bundleID == kFinderBundleID;
    activation_ = platform_.workspace.observe(
        WorkspaceNotification::didActivateApplication, [this](const RunningApplication* app) {
            finderInFront_ = app && app->bundleID == kFinderBundleID;
        });
    tap_ = EventTap::create(platform_.events, {EventType::keyDown, EventType::keyUp},
                            [this](EventType type, Event& event) { return handle(type, event); });
    lastError_ = tap_ ? std::string() : EventTap::refusedError("watch the keyboard");
    publish();
}

void FinderCutTool::stop() {
    tap_.reset();
    activation_ = {};
    landTask_.reset();
    engine_ = {};
    publish();
}

void FinderCutTool::setShowsNotice(bool on) {
    showNotice_ = on;
    platform_.preferences.set(kShowNoticeKey, on);
    publish();
}

bool FinderCutTool::handle(EventType type, Event& event) {
    const auto keyCode =
        static_cast<std::uint16_t>(event.integerField(eventField::keyboardKeycode));
    if (!FinderCutEngine::concerns(type, keyCode, event.flags()) ||
        event.integerField(eventField::sourceUserData) == ownEventTag::key) {
        return true;  // every other key, without asking Finder anything
    }
    // Renaming a file or typing in the search field: ⌘X there cuts text, as always.
    const bool filesInFront =
        type == EventType::keyDown && finderInFront_ && !isTextFocused(platform_.accessibility);
    const auto outcome = engine_.handle(type, keyCode, event.flags(), filesInFront,
                                        platform_.pasteboard.changeCount());
    if (outcome.rewrite) {
        event.setIntegerField(eventField::keyboardKeycode, outcome.rewrite->keyCode);
        event.setFlags(outcome.rewrite->flags);
    }
    if (outcome.notice == FinderCutEngine::Notice::cut) {
        landTask_ = platform_.scheduler.after(
            kLandDelay, [this] { engine_.cutLanded(platform_.pasteboard.changeCount()); });
        if (showNotice_) {
            platform_.input.hud.show(HUDCard{"scissors", "Cut — ⌘V to Move Here", std::nullopt},
                                     true, Seconds{1});
        }
    } else if (outcome.notice == FinderCutEngine::Notice::move) {
        landTask_.reset();
    }
    return true;
}

}  // namespace quorvane
