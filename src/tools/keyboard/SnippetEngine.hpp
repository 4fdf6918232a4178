#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/EventType.hpp"
#include "tools/keyboard/Snippet.hpp"
#include "tools/keyboard/SnippetTrie.hpp"

namespace quorvane {

// What the snippet tap needs to know about one event.
struct SnippetKey {
    EventType type = EventType::keyDown;
    std::uint16_t keyCode = 0;
    std::uint64_t flags = 0;
    // The event's source user-data field, where Quorvane's own events carry their tag.
    std::int64_t userData = 0;
    // Quorvane itself is the front application (its settings window, say).
    bool ownAppIsFrontmost = false;
    // What the key types, as UTF-8; empty for keys that type nothing.
    std::string_view characters;
};

// Decides, key by key, when the last characters typed are a snippet's code. It keeps the short
// buffer of what was typed and the triggers; the tool carries the expansion out. Every event
// passes on to the application whatever the engine decides.
class SnippetEngine {
public:
    // Longer codes than this can never be typed out in the buffer.
    static constexpr std::size_t kBufferLength = 64;
    static constexpr std::uint16_t kDeleteKeyCode = 51;

    struct Expansion {
        std::size_t index = 0;        // the snippet, in the list last given
        std::size_t deleteCount = 0;  // characters of its code to erase
        friend bool operator==(const Expansion&, const Expansion&) = default;
    };

    SnippetEngine();

    void setSnippets(const std::vector<Snippet>& snippets);
    std::optional<Expansion> handle(const SnippetKey& key);
    void clear() { typed_.clear(); }

    // The buffer, as UTF-8.
    std::string typed() const;
    std::size_t typedCount() const { return typed_.size(); }

private:
    SnippetTrie trie_;
    // Room for one more key's worth beyond the buffer, so trimming is one move per key at most.
    std::vector<char32_t> typed_;
};

}  // namespace quorvane
