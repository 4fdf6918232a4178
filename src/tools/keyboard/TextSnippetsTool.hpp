#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "input/EventTap.hpp"
#include "platform/PasteboardItem.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Timer.hpp"
#include "tools/keyboard/Snippet.hpp"
#include "tools/keyboard/SnippetEngine.hpp"

namespace quorvane {

// Type a snippet's code in any app and it turns into the snippet's text: the
// code is erased with Delete presses and the text pasted, and a second later
// the user's clipboard is put back. When to expand is the engine's decision;
// this tool owns the tap, the list and the clipboard.
class TextSnippetsTool : public Tool {
public:
    // The app must have seen the code's last key before it is erased.
    static constexpr Seconds kReplaceDelay{0.03};
    // Long enough for the app to have pasted.
    static constexpr Seconds kRestoreDelay{1.0};
    static constexpr std::uint16_t kVKeyCode = 9;
    static constexpr const char* kCodePlaceholder = ";code";
    static constexpr const char* kRemoveSymbol = "minus.circle";
    static constexpr const char* kAddTitle = "Add Snippet";
    static constexpr const char* kNote =
        "Start codes with a character you don't normally type, like ;date, so "
        "they never go off "
        "by accident. A code needs at least two characters and some text to turn "
        "into before it "
        "works. In the text, {date}, {time} and {clipboard} are filled in for "
        "you. Snippets don't "
        "work in password fields.";

    TextSnippetsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    const std::vector<Snippet>& snippets() const { return snippets_; }
    // Each change is stored at once.
    void setSnippets(std::vector<Snippet> snippets);
    void addSnippet();
    void setTrigger(std::size_t index, std::string trigger);
    void setText(std::size_t index, std::string text);
    void removeSnippet(std::size_t index);
    void moveSnippet(std::size_t from, std::size_t to);
    // Under each snippet that can never fire; empty for the others.
    const std::vector<std::string>& warnings() const { return warnings_; }

    int expandedThisSession() const { return expandedThisSession_; }
    std::string typed() const { return engine_.typed(); }
    bool isRunning() const { return tap_ != nullptr; }
    const std::string& lastError() const { return lastError_; }

private:
    bool handle(EventType type, Event& event);
    void expand(std::size_t deleteCount, std::string text);
    void replace(std::size_t deleteCount, const std::string& text);
    void restoreClipboard();
    std::string clipboardText();
    void changed();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    std::vector<Snippet> snippets_;
    std::vector<std::string> warnings_;
    SnippetEngine engine_;
    int expandedThisSession_ = 0;
    std::unique_ptr<EventTap> tap_;
    Subscription appToken_;
    bool ownAppIsFrontmost_ = false;
    std::vector<Timer> replacements_;
    // The user's clipboard while a snippet's text stands in for it, and the
    // change count the pasteboard had right after the text was put there.
    std::optional<std::vector<PasteboardItem>> savedClipboard_;
    std::int64_t pastedChangeCount_ = 0;
    Timer restoreTask_;
    std::string lastError_;
};

}  // namespace quorvane
