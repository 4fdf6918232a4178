#include <gtest/gtest.h>

#include "base/FileURL.hpp"
#include "platform/PasteboardType.hpp"
#include "portable/MemoryPasteboard.hpp"

namespace quorvane {
namespace {

std::vector<std::uint8_t> bytes(const std::string& text) {
    return {text.begin(), text.end()};
}

TEST(MemoryPasteboard, SavedItemsComeBackByteForByte) {
    MemoryPasteboard pasteboard;
    std::vector<std::uint8_t> binary(256);
    for (std::size_t i = 0; i < binary.size(); ++i) {
        binary[i] = static_cast<std::uint8_t>(i);
    }
    const std::vector<PasteboardItem> original = {
        {{{pasteboard_type::string, bytes("héllo")},
          {pasteboard_type::rtf, bytes("{\\rtf1 h}")},
          {"com.example.private", {}}}},
        {{{pasteboard_type::png, binary}}},
    };
    pasteboard.clearContents();
    ASSERT_TRUE(pasteboard.writeItems(original));
    const auto saved = pasteboard.items();

    pasteboard.clearContents();
    pasteboard.setString("something else", pasteboard_type::string);
    pasteboard.clearContents();
    ASSERT_TRUE(pasteboard.writeItems(saved));

    EXPECT_EQ(pasteboard.items(), original);
    EXPECT_EQ(pasteboard.itemTypes(),
              (std::vector<std::vector<std::string>>{
                  {pasteboard_type::string, pasteboard_type::rtf, "com.example.private"},
                  {pasteboard_type::png}}));
    EXPECT_EQ(pasteboard.data(pasteboard_type::png), binary);
    EXPECT_EQ(pasteboard.string(pasteboard_type::string), "héllo");
}

TEST(MemoryPasteboard, WritesLandOnTheFirstItemAndOnlyClearingCounts) {
    MemoryPasteboard pasteboard;
    const auto before = pasteboard.changeCount();
    EXPECT_EQ(pasteboard.clearContents(), before + 1);
    EXPECT_TRUE(pasteboard.types().empty());
    EXPECT_FALSE(pasteboard.string(pasteboard_type::string));

    pasteboard.setString("a", pasteboard_type::string);
    pasteboard.setData(bytes("{rtf}"), pasteboard_type::rtf);
    pasteboard.setString("b", pasteboard_type::string);
    EXPECT_EQ(pasteboard.changeCount(), before + 1);
    ASSERT_EQ(pasteboard.items().size(), 1u);
    EXPECT_EQ(pasteboard.string(pasteboard_type::string), "b");
    EXPECT_EQ(pasteboard.types(),
              (std::vector<std::string>{pasteboard_type::string, pasteboard_type::rtf}));
}

TEST(MemoryPasteboard, FilePathsSurviveTheirUrlForm) {
    MemoryPasteboard pasteboard;
    const std::vector<std::string> paths = {"/Users/me/My File #1.txt", "/tmp/ünï%20code"};
    pasteboard.clearContents();
    pasteboard.writeFilePaths(paths);
    // A web link beside the files is not a file.
    pasteboard.writeItems({{{{pasteboard_type::fileURL, bytes("https://example.com/x")}}}});
    EXPECT_EQ(pasteboard.filePaths(), paths);
    EXPECT_EQ(pasteboard.string(pasteboard_type::fileURL), "file:///Users/me/My%20File%20%231.txt");
}

TEST(FileURL, RefusesWhatIsNotALocalFile) {
    EXPECT_EQ(file_url::toPath("file://localhost/a%2Fb"), "/a/b");
    EXPECT_EQ(file_url::toPath("file:///a%C3%BC"), "/aü");
    EXPECT_FALSE(file_url::toPath("file://server/share"));
    EXPECT_FALSE(file_url::toPath("file:///bad%2"));
    EXPECT_FALSE(file_url::toPath("file:///bad%zz"));
    EXPECT_FALSE(file_url::toPath("/plain/path"));
}

}  // namespace
}  // namespace quorvane
