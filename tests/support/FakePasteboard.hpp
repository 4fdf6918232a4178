#pragma once

#include <string>
#include <vector>

#include "platform/PasteboardType.hpp"
#include "portable/MemoryPasteboard.hpp"

namespace quorvane {

// The in-memory pasteboard plus what tests need around it: another app copying, a pasteboard
// that refuses writes, and a count of the reads that cost something.
struct FakePasteboard : MemoryPasteboard {
    bool refuseWrites = false;
    int changeCountReads = 0;
    int byteReads = 0;

    std::int64_t changeCount() override {
        ++changeCountReads;
        return MemoryPasteboard::changeCount();
    }
    std::optional<std::string> string(const std::string& type) override {
        ++byteReads;
        return MemoryPasteboard::string(type);
    }
    std::optional<std::vector<std::uint8_t>> data(const std::string& type) override {
        ++byteReads;
        return MemoryPasteboard::data(type);
    }
    std::vector<PasteboardItem> items() override {
        ++byteReads;
        return MemoryPasteboard::items();
    }
    bool setString(const std::string& string, const std::string& type) override {
        return !refuseWrites && MemoryPasteboard::setString(string, type);
    }
    bool setData(const std::vector<std::uint8_t>& bytes, const std::string& type) override {
        return !refuseWrites && MemoryPasteboard::setData(bytes, type);
    }
    bool writeFilePaths(const std::vector<std::string>& paths) override {
        return !refuseWrites && MemoryPasteboard::writeFilePaths(paths);
    }
    bool writeItems(const std::vector<PasteboardItem>& items) override {
        return !refuseWrites && MemoryPasteboard::writeItems(items);
    }

    // Another app copies these items.
    void copyItems(std::vector<PasteboardItem> items) {
        changeCount_++;
        items_ = std::move(items);
    }
    // Another app copies one item holding the text and, beside it, the given extra types.
    void copyText(const std::string& text, const std::vector<std::string>& extraTypes = {}) {
        PasteboardItem item{{{pasteboard_type::string, bytes(text)}}};
        for (const auto& type : extraTypes) {
            item.representations.push_back({type, {}});
        }
        copyItems({item});
    }
    // Another app empties the clipboard, as a password manager does.
    void clearByOtherApp() { copyItems({}); }

    static std::vector<std::uint8_t> bytes(const std::string& text) {
        return {text.begin(), text.end()};
    }
};

}  // namespace quorvane
