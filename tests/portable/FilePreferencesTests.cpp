#include "portable/FilePreferences.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

TEST(FilePreferences, EveryKindSurvivesAReopen) {
    TemporaryDirectory dir;
    const auto file = dir / "nested" / "preferences.json";
    std::string error;
    auto store = FilePreferences::open(file, error);
    ASSERT_TRUE(store) << error;
    EXPECT_FALSE(std::filesystem::exists(file)) << "nothing is written before the first change";

    PreferenceValue::Dictionary tagLike{{"$data", PreferenceValue("not base64!")}};
    const std::vector<std::pair<std::string, PreferenceValue>> values = {
        {"flag", true},
        {"count", std::int64_t{9007199254740992}},
        {"ratio", 0.1},
        {"whole", 2.0},
        {"text", "Grüße ⌘"},
        {"blob", PreferenceValue::Data{0, 1, 254, 255}},
        {"when", PreferenceValue::Date{784111777.5}},
        {"list", PreferenceValue::stringArray({"a", "b"})},
        {"tagLike", tagLike},
        {"nested", PreferenceValue::Dictionary{{"inner", PreferenceValue::Array{1, "x", false}}}},
    };
    for (const auto& [key, value] : values) {
        store->set(key, value);
    }
    store->set("gone", 1);
    store->remove("gone");
    EXPECT_EQ(store->lastError(), "");

    auto reopened = FilePreferences::open(file, error);
    ASSERT_TRUE(reopened) << error;
    for (const auto& [key, value] : values) {
        EXPECT_EQ(reopened->object(key), value) << key;
    }
    EXPECT_EQ(reopened->object("gone"), std::nullopt);
    EXPECT_EQ(reopened->kind("whole"), PreferenceKind::real) << "2.0 stays a real";

    struct stat info {};
    ASSERT_EQ(::stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u) << "preferences may hold private text";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(file.parent_path()),
                            std::filesystem::directory_iterator()),
              1)
        << "no temporary file is left behind";
}

TEST(FilePreferences, ADamagedFileIsRefusedAndLeftAsItIs) {
    TemporaryDirectory dir;
    const std::vector<std::pair<std::string, std::string>> damaged = {
        {"{\"tool.a.enabled\": true,", "at byte 24"}, {"", "empty"},
        {"[true]", "does not hold a JSON object"},    {"{\"x\": null}", "\"x\""},
        {"{\"x\": {\"$data\": \"@@@\"}}", "\"x\""},   {"{\"a\": 1, \"a\": 2}", "at byte"},
    };
    for (const auto& [text, reason] : damaged) {
        const auto file = dir / "preferences.json";
        TemporaryDirectory::write(file, text);
        std::string error;
        EXPECT_EQ(FilePreferences::open(file, error), nullptr) << text;
        EXPECT_NE(error.find(reason), std::string::npos) << error;
        EXPECT_NE(error.find("left as it is"), std::string::npos) << error;
        EXPECT_EQ(TemporaryDirectory::read(file), text);
    }
}

TEST(FilePreferences, AFailedWriteIsReportedAndTheChangeKeptInMemory) {
    TemporaryDirectory dir;
    TemporaryDirectory::write(dir / "blocker", "a file where a folder should be");
    std::string error;
    auto store = FilePreferences::open(dir / "blocker" / "preferences.json", error);
    ASSERT_TRUE(store) << error;
    store->set("a", 2);
    EXPECT_NE(store->lastError().find("blocker"), std::string::npos) << store->lastError();
    EXPECT_EQ(store->integer("a"), 2);
}

}  // namespace
}  // namespace quorvane
