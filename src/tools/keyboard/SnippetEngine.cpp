#include "tools/keyboard/SnippetEngine.hpp"

#include <algorithm>

#include "base/Utf8.hpp"
#include "platform/EventField.hpp"

namespace quorvane {

namespace {

// Control or Command: a shortcut, not typing.
constexpr std::uint64_t kShortcutFlags = modifierFlag::control | modifierFlag::command;
// The most characters one key press types: the platform hands over eight UTF-16 units at most.
constexpr std::size_t kMostPerKey = 8;

// Keys that move the caret or leave the field: what follows is not the continuation of what was
// typed before. Return, Tab, Escape, Home, Page Up, Forward Delete, End, Page Down, the arrows.
bool endsTyping(std::uint16_t keyCode) {
    switch (keyCode) {
        case 36:
        case 48:
        case 53:
        case 115:
        case 116:
        case 117:
        case 119:
        case 121:
        case 123:
        case 124:
        case 125:
        case 126:
            return true;
        default:
            return false;
    }
}

}  // namespace

SnippetEngine::SnippetEngine() {
    typed_.reserve(kBufferLength + kMostPerKey * 2);
}

void SnippetEngine::setSnippets(const std::vector<Snippet>& snippets) {
    trie_ = SnippetTrie(snippets);
}

std::optional<SnippetEngine::Expansion> SnippetEngine::handle(const SnippetKey& key) {
    // A click (or anything else that reaches the tap) may have moved the caret.
    if (key.type != EventType::keyDown) {
        typed_.clear();
        return std::nullopt;
    }
    // The tool's own Delete presses and ⌘V: left out, and the buffer left as it is.
    if (key.userData == ownEventTag::key) {
        return std::nullopt;
    }
    if ((key.flags & kShortcutFlags) != 0 || key.ownAppIsFrontmost || endsTyping(key.keyCode)) {
        typed_.clear();
        return std::nullopt;
    }
    if (key.keyCode == kDeleteKeyCode) {
        // Option-Delete erases a word, and the buffer cannot tell how long the word was.
        if ((key.flags & modifierFlag::option) != 0) {
            typed_.clear();
        } else if (!typed_.empty()) {
            typed_.pop_back();
        }
        return std::nullopt;
    }
    if (key.characters.empty()) {
        return std::nullopt;
    }
    Snippet::appendCharacters(key.characters, typed_);
    if (typed_.size() > kBufferLength) {
        typed_.erase(typed_.begin(),
                     typed_.begin() + static_cast<std::ptrdiff_t>(typed_.size() - kBufferLength));
    }
    const auto match = trie_.longestSuffix(typed_);
    if (!match) {
        return std::nullopt;
    }
    typed_.clear();
    return Expansion{match->index, match->length};
}

std::string SnippetEngine::typed() const {
    std::string text;
    for (const char32_t c : typed_) {
        utf8::appendCodePoint(text, c);
    }
    return text;
}

}  // namespace quorvane
