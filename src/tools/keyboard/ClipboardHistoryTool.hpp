#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Rect.hpp"
#include "base/Subscription.hpp"
#include "input/EventTap.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/ListPanel.hpp"
#include "platform/Platform.hpp"
#include "platform/Thumbnail.hpp"
#include "platform/Timer.hpp"
#include "tools/keyboard/ClipboardHistory.hpp"
#include "tools/keyboard/ClipboardListModel.hpp"
#include "tools/keyboard/ClipboardStore.hpp"
#include "tools/keyboard/MouseTrigger.hpp"

namespace quorvane {

// Remembers what the user copies and pastes any earlier copy again from a floating list,
// opened with a shortcut, a modified right-click or the menu. Private copies and copies from
// password managers or excluded apps are never kept.
class ClipboardHistoryTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "clipboard.shortcut";
    static constexpr const char* kMaxItemsKey = "clipboard.maxItems";
    static constexpr const char* kMouseTriggerKey = "clipboard.mouseTrigger";
    static constexpr const char* kRememberKey = "clipboard.remember";
    static constexpr const char* kIgnoredAppsKey = "clipboard.ignoredApps";
    static constexpr const char* kShowCommand = "Show Clipboard History";
    static constexpr const char* kNeverRemember = "Never remember copies from";
    static constexpr const char* kRememberAgain = "Remember copies from this app again";
    static constexpr std::int64_t kOwnKeyTag = 0x4B564C545458;
    static constexpr int kThumbnailSize = 160;

    ClipboardHistoryTool(const ToolDescriptor& descriptor, const Platform& platform);
    ClipboardHistoryTool(const ToolDescriptor& descriptor, const Platform& platform,
                         std::filesystem::path folder);
    ~ClipboardHistoryTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    std::optional<ToolControl> control() override;

    // Settings, each written at once.
    const std::optional<KeyCombo>& shortcut() const { return shortcut_.shortcut(); }
    void setShortcut(std::optional<KeyCombo> combo) { shortcut_.set(std::move(combo)); }
    bool shortcutConflict() const { return shortcut_.hasConflict(); }
    std::size_t maxItems() const { return history_.maxItems(); }
    void setMaxItems(std::size_t maxItems);
    MouseTrigger mouseTrigger() const { return mouseTrigger_; }
    void setMouseTrigger(MouseTrigger trigger);
    bool remembersAfterRestart() const { return remembers_; }
    void setRemembersAfterRestart(bool remembers);
    const std::vector<std::string>& ignoredApps() const { return ignoredApps_; }
    void ignoreApp(const std::string& bundleID);
    void rememberApp(const std::string& bundleID);

    const ClipboardHistory::Items& items() const { return history_.items(); }
    bool isActive() const { return isActive_; }
    int lastOtherApp() const { return lastOtherApp_; }
    const std::string& lastError() const { return lastError_; }
    const ClipboardStore& store() const { return store_; }

    // One look at the pasteboard; the poll runs it every 0.4 s.
    void check();
    // Writes the item to the clipboard and, shortly after, presses ⌘V into the app in front.
    void paste(const Uuid& id, bool plainText);
    void remove(const Uuid& id);

    // The list. `anchor` in screen coordinates (origin bottom left); nothing opens it at the
    // text caret, or at the pointer when no caret can be found.
    void openPanel(std::optional<Point> anchor = std::nullopt, bool pasteHere = false);
    // What "Show Clipboard History" in the menu does: gives the front back to the app the
    // user was in, then opens the list at its caret.
    void showFromMenu();
    void closePanel();
    bool isPanelOpen() const { return panelOpen_; }
    bool isPasteHere() const { return pasteHere_; }
    const Rect& panelFrame() const { return panelFrame_; }
    ClipboardListModel& listModel() { return model_; }
    // A key-down while the list is open; false when it is typing meant for the search field.
    bool panelKey(std::uint16_t keyCode, std::uint64_t flags);
    // The cached thumbnail of an image row, made on first request.
    std::optional<Thumbnail> thumbnail(const Uuid& id);
    std::size_t thumbnailCount() const { return thumbnails_.size(); }

private:
    void load();
    void installTap();
    bool handleMouse(EventType type, Event& event);
    void openAtClick(Point topLeftLocation);
    ListPanel::Handlers panelHandlers();
    ListPanelRow panelRow(std::size_t index);
    // Draws the list again while it is open.
    void refreshPanel();
    std::optional<Point> caretAnchor();
    Point toBottomLeft(Point topLeft);
    void deleteImages(const std::vector<Uuid>& ids);
    void scheduleSave();
    void prune();
    void changed();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ClipboardStore store_;
    ShortcutSetting shortcut_;
    ClipboardHistory history_;
    MouseTrigger mouseTrigger_ = MouseTrigger::command;
    bool remembers_ = true;
    std::vector<std::string> ignoredApps_;
    bool isActive_ = false;
    std::unique_ptr<EventTap> mouseTap_;
    bool swallowRightMouseUp_ = false;
    std::optional<Timer> pollTask_;
    std::optional<Timer> saveTask_;
    std::optional<Timer> pasteTask_;
    std::optional<Timer> openTask_;
    std::int64_t lastChangeCount_ = -1;
    std::map<Uuid, Thumbnail> thumbnails_;
    ClipboardListModel model_;
    // Made on first use; kept until the tool goes.
    std::unique_ptr<ListPanel> panel_;
    std::optional<Timer> closeTask_;
    bool panelOpen_ = false;
    bool pasteHere_ = false;
    Rect panelFrame_;
    Subscription keyMonitor_;
    Subscription clickMonitor_;
    int lastOtherApp_ = 0;
    Subscription activationToken_;
    std::string lastError_;
};

}  // namespace quorvane
