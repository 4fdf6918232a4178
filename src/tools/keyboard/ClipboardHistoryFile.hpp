#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/AtomicFile.hpp"
#include "tools/keyboard/ClipItems.hpp"

namespace quorvane {

// The text of "history.json": a JSON array with one object per copy, its members named after
// ClipItem's fields in byte order, absent fields left out, the date a real number of seconds.
// Written and read member by member, straight from and into the copies: a history of thousands
// of long texts goes through no intermediate tree.
struct ClipboardHistoryFile {
    static std::string encode(const ClipItems& items);
    // The same text handed to `sink` in pieces of about a megabyte, so that writing a large
    // history never holds a second copy of it in memory. False when the sink gave up.
    static bool write(const ClipItems& items, const ByteSink& sink);
    // Nothing when the text is not such an array: not JSON (truncated, damaged), a required
    // member (id, kind, date) missing, a member of the wrong kind or given twice.
    static std::optional<ClipItems> decode(std::string_view text);
};

}  // namespace quorvane
