#pragma once

#include "platform/Pasteboard.hpp"

namespace quorvane {

// A pasteboard held in this process, for the command line and as the base of the test fake.
// It behaves like the general pasteboard of one app: writes after clearContents() land on the
// first item or add items, and only clearing moves the change count.
class MemoryPasteboard : public Pasteboard {
public:
    std::int64_t changeCount() override { return changeCount_; }
    std::vector<std::string> types() override;
    std::vector<std::vector<std::string>> itemTypes() override;
    std::optional<std::string> string(const std::string& type) override;
    std::optional<std::vector<std::uint8_t>> data(const std::string& type) override;
    std::vector<std::string> filePaths() override;
    std::vector<PasteboardItem> items() override { return items_; }

    std::int64_t clearContents() override;
    bool setString(const std::string& string, const std::string& type) override;
    bool setData(const std::vector<std::uint8_t>& bytes, const std::string& type) override;
    bool writeFilePaths(const std::vector<std::string>& paths) override;
    bool writeItems(const std::vector<PasteboardItem>& items) override;

protected:
    std::int64_t changeCount_ = 0;
    std::vector<PasteboardItem> items_;
};

}  // namespace quorvane
