#include "tools/keyboard/TextSnippetsTool.hpp"

#include <algorithm>

#include "input/KeyPressSynthesizer.hpp"
#include "platform/DateFormatting.hpp"
#include "platform/EventField.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/PasteboardType.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"
#include "tools/keyboard/PlaceholderExpander.hpp"
#include "tools/keyboard/SnippetConflicts.hpp"
#include "tools/keyboard/SnippetStore.hpp"

namespace quorvane {

namespace {

constexpr const char* kUnreadableList =
    "Your saved snippets couldn't be read, so the starting ones are shown. "
    "What was saved is "
    "kept as it is until you change this list.";
constexpr const char* kPasteboardRefused =
    "Couldn't put the snippet on the clipboard, so the code was left as you "
    "typed it.";

}  // namespace

TextSnippetsTool::TextSnippetsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    auto loaded = SnippetStore::load(platform_.preferences);
    snippets_ = std::move(loaded.snippets);
    if (!loaded.readable) {
        lastError_ = kUnreadableList;
    }
    engine_.setSnippets(snippets_);
    warnings_ = SnippetConflicts::warnings(snippets_);
}

void TextSnippetsTool::start() {
    tap_.reset();
    engine_.clear();
    tap_ = EventTap::create(
        platform_.events, {EventType::keyDown, EventType::leftMouseDown, EventType::rightMouseDown},
        [this](EventType type, Event& event) { return handle(type, event); });
    // Followed by notification rather than asked on every key press: the front
    // application is a round trip to the window server, and the tap must stay
    // quick.
    const auto front = platform_.workspace.frontmostApplication();
    ownAppIsFrontmost_ = front && front->pid == platform_.workspace.currentProcessID();
    appToken_ = platform_.workspace.observe(
        WorkspaceNotification::didActivateApplication, [this](const RunningApplication* app) {
            ownAppIsFrontmost_ =
                app != nullptr && app->pid == platform_.workspace.currentProcessID();
            engine_.clear();
        });
    publish();
}

void TextSnippetsTool::stop() {
    tap_.reset();
    appToken_.cancel();
    engine_.clear();
    replacements_.clear();
    // Turned off within a second of an expansion: the user's clipboard comes back
    // now.
    if (restoreTask_) {
        restoreTask_.cancel();
        restoreClipboard();
    }
    publish();
}

bool TextSnippetsTool::handle(EventType type, Event& event) {
    SnippetKey key;
    key.type = type;
    key.ownAppIsFrontmost = ownAppIsFrontmost_;
    std::string characters;
    if (type == EventType::keyDown) {
        key.keyCode = static_cast<std::uint16_t>(event.integerField(eventField::keyboardKeycode));
        key.flags = event.flags();
        key.userData = event.integerField(eventField::sourceUserData);
        if (key.userData != ownEventTag::key) {
            characters = event.unicodeString();
            key.characters = characters;
        }
    }
    if (const auto expansion = engine_.handle(key)) {
        expand(expansion->deleteCount, snippets_[expansion->index].text);
    }
    return true;
}

void TextSnippetsTool::expand(std::size_t deleteCount, std::string text) {
    const double now = platform_.scheduler.date();
    PlaceholderExpander::Values values{
        [&] {
            return platform_.dateFormatting.format(now, DateFormatting::Style::longStyle,
                                                   DateFormatting::Style::none);
        },
        [&] {
            return platform_.dateFormatting.format(now, DateFormatting::Style::none,
                                                   DateFormatting::Style::shortStyle);
        },
        [this] { return clipboardText(); }};
    std::string expanded = PlaceholderExpander::expand(text, values);
    std::erase_if(replacements_, [](const Timer& timer) { return !timer.isActive(); });
    replacements_.push_back(platform_.scheduler.after(
        kReplaceDelay,
        [this, deleteCount, expanded = std::move(expanded)] { replace(deleteCount, expanded); }));
}

std::string TextSnippetsTool::clipboardText() {
    // While an earlier expansion's text is still standing in for it, the user's
    // clipboard is the saved one.
    if (savedClipboard_ && platform_.pasteboard.changeCount() == pastedChangeCount_) {
        for (const auto& item : *savedClipboard_) {
            if (const auto* bytes = item.find(pasteboard_type::string)) {
                return std::string(bytes->begin(), bytes->end());
            }
        }
        return {};
    }
    return platform_.pasteboard.string(pasteboard_type::string).value_or("");
}

void TextSnippetsTool::replace(std::size_t deleteCount, const std::string& text) {
    Pasteboard& pasteboard = platform_.pasteboard;
    // A second expansion within the second finds the first one's text on the
    // clipboard, not the user's: the user's copy saved then is the one to bring
    // back, once.
    const bool ownTextShowing =
        savedClipboard_.has_value() && pasteboard.changeCount() == pastedChangeCount_;
    if (!ownTextShowing) {
        savedClipboard_ = pasteboard.items();
    }
    pasteboard.clearContents();
    // The clipboard is written before anything is erased, so a refused write
    // costs the user nothing but the expansion. The app sees the presses later
    // either way.
    if (!pasteboard.setString(text, pasteboard_type::string)) {
        pastedChangeCount_ = pasteboard.changeCount();
        restoreClipboard();
        setLastError(kPasteboardRefused);
        return;
    }
    pastedChangeCount_ = pasteboard.changeCount();
    for (std::size_t i = 0; i < deleteCount; ++i) {
        KeyPressSynthesizer::press(platform_.events, SnippetEngine::kDeleteKeyCode, 0,
                                   ownEventTag::key);
    }
    KeyPressSynthesizer::press(platform_.events, kVKeyCode, modifierFlag::command,
                               ownEventTag::key);
    ++expandedThisSession_;
    if (!lastError_.empty() && lastError_ == kPasteboardRefused) {
        lastError_.clear();
    }
    restoreTask_ = platform_.scheduler.after(kRestoreDelay, [this] { restoreClipboard(); });
    publish();
}

void TextSnippetsTool::restoreClipboard() {
    restoreTask_.cancel();
    auto saved = std::exchange(savedClipboard_, std::nullopt);
    // The user copied something meanwhile: that copy is theirs to keep.
    if (!saved || platform_.pasteboard.changeCount() != pastedChangeCount_) {
        return;
    }
    platform_.pasteboard.clearContents();
    if (!saved->empty()) {
        platform_.pasteboard.writeItems(*saved);
    }
}

void TextSnippetsTool::setSnippets(std::vector<Snippet> snippets) {
    snippets_ = std::move(snippets);
    changed();
}

void TextSnippetsTool::addSnippet() {
    snippets_.push_back({Uuid::random(), "", ""});
    changed();
}

void TextSnippetsTool::setTrigger(std::size_t index, std::string trigger) {
    if (index < snippets_.size() && snippets_[index].trigger != trigger) {
        snippets_[index].trigger = std::move(trigger);
        changed();
    }
}

void TextSnippetsTool::setText(std::size_t index, std::string text) {
    if (index < snippets_.size() && snippets_[index].text != text) {
        snippets_[index].text = std::move(text);
        changed();
    }
}

void TextSnippetsTool::removeSnippet(std::size_t index) {
    if (index < snippets_.size()) {
        snippets_.erase(snippets_.begin() + static_cast<std::ptrdiff_t>(index));
        changed();
    }
}

void TextSnippetsTool::moveSnippet(std::size_t from, std::size_t to) {
    if (from >= snippets_.size() || to >= snippets_.size() || from == to) {
        return;
    }
    const auto first = snippets_.begin();
    if (from < to) {
        std::rotate(first + static_cast<std::ptrdiff_t>(from),
                    first + static_cast<std::ptrdiff_t>(from) + 1,
                    first + static_cast<std::ptrdiff_t>(to) + 1);
    } else {
        std::rotate(first + static_cast<std::ptrdiff_t>(to),
                    first + static_cast<std::ptrdiff_t>(from),
                    first + static_cast<std::ptrdiff_t>(from) + 1);
    }
    changed();
}

void TextSnippetsTool::changed() {
    SnippetStore::save(platform_.preferences, snippets_);
    engine_.setSnippets(snippets_);
    warnings_ = SnippetConflicts::warnings(snippets_);
    if (lastError_ == kUnreadableList) {
        lastError_.clear();
    }
    if (const auto error = platform_.preferences.lastError(); !error.empty()) {
        lastError_ = error;
    }
    publish();
}

void TextSnippetsTool::setLastError(std::string error) {
    lastError_ = std::move(error);
    publish();
}

}  // namespace quorvane
