#pragma once

#include <optional>
#include <string>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "input/ShortcutSetting.hpp"
#include "platform/Platform.hpp"
#include "platform/Timer.hpp"
#include "tools/keyboard/PlainPasteEngine.hpp"

namespace quorvane {

// A global shortcut that pastes the clipboard's text without its styling into the app in
// front, then puts the original clipboard back exactly, every item and every type, unless the
// user copied something else in the meantime.
class PastePlainTextTool : public Tool {
public:
    static constexpr const char* kShortcutKey = "pastePlainText.shortcut";
    static constexpr const char* kNothingToPaste = "The clipboard holds no text to paste.";
    static constexpr std::int64_t kOwnKeyTag = 0x4B564C545458;

    PastePlainTextTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~PastePlainTextTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    const std::optional<KeyCombo>& shortcut() const { return shortcut_.shortcut(); }
    void setShortcut(std::optional<KeyCombo> combo) { shortcut_.set(std::move(combo)); }
    bool shortcutConflict() const { return shortcut_.hasConflict(); }
    bool isActive() const { return isActive_; }
    const std::string& lastError() const { return lastError_; }

    // What the shortcut does.
    void pastePlainText();

private:
    void putBack();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    ShortcutSetting shortcut_;
    PlainPasteEngine engine_;
    std::optional<Timer> pasteTask_;
    std::optional<Timer> restoreTask_;
    bool isActive_ = false;
    std::string lastError_;
};

}  // namespace quorvane
