#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/PasteboardItem.hpp"

namespace quorvane {

// The general pasteboard, one call per platform primitive. Reading needs no clearing; writing
// starts with clearContents(), then either sets representations on the first item
// (setString / setData) or adds whole items (writeFilePaths / writeItems).
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    // Grows whenever the pasteboard's owner changes (every clearContents, here or in any app).
    virtual std::int64_t changeCount() = 0;
    // The types the pasteboard offers; empty when it holds nothing.
    virtual std::vector<std::string> types() = 0;
    // Each item's types, item by item, without reading any bytes: a private marker may sit on
    // any item, and looking must stay cheap when one of them holds a huge copy.
    virtual std::vector<std::vector<std::string>> itemTypes() = 0;
    // stringForType: nothing when no item offers the type as text.
    virtual std::optional<std::string> string(const std::string& type) = 0;
    // dataForType: nothing when no item offers the type.
    virtual std::optional<std::vector<std::uint8_t>> data(const std::string& type) = 0;
    // The copied files' absolute paths (file URLs only; other URLs are left out).
    virtual std::vector<std::string> filePaths() = 0;
    // Every item with every type it offers and its bytes.
    virtual std::vector<PasteboardItem> items() = 0;

    // Empties the pasteboard and takes ownership of it; answers the new change count.
    virtual std::int64_t clearContents() = 0;
    // False when the system refused the write.
    virtual bool setString(const std::string& string, const std::string& type) = 0;
    virtual bool setData(const std::vector<std::uint8_t>& bytes, const std::string& type) = 0;
    // Adds one item per path, each a file URL.
    virtual bool writeFilePaths(const std::vector<std::string>& paths) = 0;
    // Adds the items as they are, every representation under its own type.
    virtual bool writeItems(const std::vector<PasteboardItem>& items) = 0;
};

}  // namespace quorvane
