#pragma once

#include "platform/Pasteboard.hpp"

namespace quorvane {

// The general pasteboard through NSPasteboard.
class MacPasteboard final : public Pasteboard {
public:
    std::int64_t changeCount() override;
    std::vector<std::string> types() override;
    std::vector<std::vector<std::string>> itemTypes() override;
    std::optional<std::string> string(const std::string& type) override;
    std::optional<std::vector<std::uint8_t>> data(const std::string& type) override;
    std::vector<std::string> filePaths() override;
    std::vector<PasteboardItem> items() override;

    std::int64_t clearContents() override;
    bool setString(const std::string& string, const std::string& type) override;
    bool setData(const std::vector<std::uint8_t>& bytes, const std::string& type) override;
    bool writeFilePaths(const std::vector<std::string>& paths) override;
    bool writeItems(const std::vector<PasteboardItem>& items) override;
};

}  // namespace quorvane
