#include "tools/keyboard/PastePlainTextTool.hpp"

#include "input/KeyPressSynthesizer.hpp"
#include "platform/EventField.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/PasteboardType.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Screens.hpp"

namespace quorvane {

namespace {

constexpr std::uint16_t kVKeyCode = 9;
// Long enough for the app in front to see the clipboard change before ⌘V arrives.
constexpr Seconds kPasteDelay{0.12};
// Apps read the clipboard when they handle ⌘V, which may take a moment in a busy app.
constexpr Seconds kRestoreDelay{0.6};

}  // namespace

PastePlainTextTool::PastePlainTextTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      shortcut_(
          platform, kShortcutKey,
          KeyCombo{kVKeyCode, modifierFlag::option | modifierFlag::command | modifierFlag::shift,
                   "V"},
          [this] { pastePlainText(); }, [this] { publish(); }) {}

PastePlainTextTool::~PastePlainTextTool() = default;

void PastePlainTextTool::start() {
    isActive_ = true;
    shortcut_.activate();
    publish();
}

void PastePlainTextTool::stop() {
    isActive_ = false;
    shortcut_.deactivate();
    shortcut_.recorder().stop();
    pasteTask_.reset();
    // Turning off never leaves the user with the stripped copy in place of theirs.
    if (engine_.isPending()) {
        putBack();
    }
    publish();
}

void PastePlainTextTool::pastePlainText() {
    Pasteboard& pasteboard = platform_.pasteboard;
    const auto text = PlainPasteEngine::textToPaste(pasteboard.string(pasteboard_type::string));
    if (!text) {
        platform_.screens.beep();
        return;
    }
    // Pressed again before the original came back: the clipboard holds our own text, and the
    // original saved the first time is still the one to restore.
    std::optional<std::vector<PasteboardItem>> saved;
    if (!engine_.holdsOwnText(pasteboard.changeCount())) {
        saved = pasteboard.items();
    }
    pasteboard.clearContents();
    const bool written = pasteboard.setString(*text, pasteboard_type::string);
    engine_.wrote(pasteboard.changeCount(), std::move(saved));
    if (!written) {
        setLastError("Couldn't put the plain text on the clipboard");
        // What is left there is not the user's copy; theirs goes back at once.
        putBack();
        return;
    }
    if (!lastError_.empty()) {
        setLastError({});
    }
    pasteTask_ = platform_.scheduler.after(kPasteDelay, [this] {
        KeyPressSynthesizer::press(platform_.events, kVKeyCode, modifierFlag::command, kOwnKeyTag);
        restoreTask_ = platform_.scheduler.after(kRestoreDelay, [this] { putBack(); });
    });
}

void PastePlainTextTool::putBack() {
    restoreTask_.reset();
    Pasteboard& pasteboard = platform_.pasteboard;
    const auto original = engine_.restore(pasteboard.changeCount());
    if (!original) {
        return;
    }
    pasteboard.clearContents();
    if (!original->empty() && !pasteboard.writeItems(*original)) {
        setLastError("Couldn't put your clipboard back");
    }
}

void PastePlainTextTool::setLastError(std::string error) {
    lastError_ = std::move(error);
    publish();
}

}  // namespace quorvane
