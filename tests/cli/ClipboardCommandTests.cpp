#include "cli/ClipboardCommand.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "support/TemporaryDirectory.hpp"
#include "tools/keyboard/ClipboardStore.hpp"

namespace quorvane {
namespace {

struct ClipboardCommandTest : ::testing::Test {
    TemporaryDirectory temp;
    ClipboardStore store{temp.path()};
    std::ostringstream out;
    std::string error;

    void SetUp() override {
        ClipItem copy;
        copy.id = *Uuid::parse("E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
        copy.text = "  Meeting notes\nfor Tuesday ";
        copy.app = "com.example.editor";
        copy.date = 0;
        ClipItem picture;
        picture.id = Uuid::random();
        picture.kind = ClipItem::Kind::image;
        picture.imageType = "public.png";
        picture.date = 86400.5;
        store.writeImage(picture.id, {1, 2});
        ASSERT_TRUE(store.save({picture, copy}));
    }
    bool run(std::vector<std::string> operands) {
        out.str({});
        return ClipboardCommand::run(operands, temp.path(), out, error);
    }
};

TEST_F(ClipboardCommandTest, ListsSearchesAndClears) {
    ASSERT_TRUE(run({"list"}));
    EXPECT_EQ(out.str(),
              "image\tpublic.png\t-\t2001-01-02T00:00:00Z\n"
              "text\tMeeting notes for Tuesday\tcom.example.editor\t2001-01-01T00:00:00Z\n");
    ASSERT_TRUE(run({"list", "--json"}));
    EXPECT_NE(out.str().find("\"id\": \"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\""),
              std::string::npos);
    ASSERT_TRUE(run({"search", "TUESDAY"}));
    EXPECT_EQ(out.str().substr(0, 5), "text\t");
    ASSERT_TRUE(run({"search", "screenshot"}));
    EXPECT_EQ(out.str().substr(0, 6), "image\t");
    ASSERT_TRUE(run({"clear"}));
    EXPECT_FALSE(std::filesystem::exists(store.historyPath()));
    EXPECT_TRUE(std::filesystem::is_empty(temp / "Images"));
    ASSERT_TRUE(run({"list"}));
    EXPECT_EQ(out.str(), "");
}

TEST_F(ClipboardCommandTest, RefusesBadWordsAndLeavesABadFileAlone) {
    EXPECT_FALSE(run({"list", "--xml"}));
    EXPECT_EQ(error, "usage: quorvane clipboard list [--json] | search WORD | clear");
    EXPECT_FALSE(run({"search"}));
    TemporaryDirectory::write(store.historyPath(), "[1,");
    EXPECT_FALSE(run({"list"}));
    EXPECT_NE(error.find("cannot be read"), std::string::npos);
    EXPECT_EQ(TemporaryDirectory::read(store.historyPath()), "[1,");
}

}  // namespace
}  // namespace quorvane
