#include "tools/keyboard/ClipboardStore.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/Json.hpp"
#include "support/TemporaryDirectory.hpp"
#include "tools/keyboard/ClipboardHistoryFile.hpp"

namespace quorvane {
namespace {

mode_t modeOf(const std::filesystem::path& path) {
    struct stat info {};
    ::stat(path.c_str(), &info);
    return info.st_mode & 0777;
}

// Restores the process umask when the test ends.
struct Umask {
    explicit Umask(mode_t mask) : old(::umask(mask)) {}
    ~Umask() { ::umask(old); }
    mode_t old;
};

ClipItem sample() {
    ClipItem item;
    item.id = Uuid::random();
    item.text = "naïve \"quoted\"\n";
    item.rich = std::map<std::string, std::vector<std::uint8_t>>{{"public.rtf", {0, 1, 2, 255}}};
    item.app = "com.example.editor";
    item.date = 800000000.25;
    return item;
}

TEST(ClipboardStore, FilesAndFoldersAreOwnerOnlyWhateverTheUmask) {
    TemporaryDirectory temp;
    const Umask loose(022);
    const ClipboardStore store(temp / "Application Support" / "Quorvane" / "Clipboard");
    ClipItem picture = sample();
    picture.kind = ClipItem::Kind::image;
    ASSERT_TRUE(store.writeImage(picture.id, {1, 2, 3}));
    ASSERT_TRUE(store.save({sample(), picture}));
    EXPECT_EQ(modeOf(store.folder()), 0700u);
    EXPECT_EQ(modeOf(store.folder().parent_path()), 0700u);
    EXPECT_EQ(modeOf(store.folder() / "Images"), 0700u);
    EXPECT_EQ(modeOf(store.historyPath()), 0600u);
    EXPECT_EQ(modeOf(store.imagePath(picture.id)), 0600u);
    EXPECT_EQ(store.imagePath(picture.id).filename().string(), picture.id.text());
    // Nothing but the two files: no temporaries left behind.
    std::size_t entries = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::recursive_directory_iterator(store.folder())) {
        ++entries;
    }
    EXPECT_EQ(entries, 3u);
}

TEST(ClipboardStore, SavedHistoryLoadsBackTheSame) {
    TemporaryDirectory temp;
    const ClipboardStore store(temp.path());
    ClipItem fileCopy;
    fileCopy.id = Uuid::random();
    fileCopy.kind = ClipItem::Kind::files;
    fileCopy.filePaths = std::vector<std::string>{"/a b/c.txt"};
    ClipboardHistory::Items items = {sample(), fileCopy};
    ASSERT_TRUE(store.save(items));
    const auto loaded = store.load();
    EXPECT_EQ(loaded.items, items);
    EXPECT_FALSE(loaded.setAside);
    const std::string text = TemporaryDirectory::read(store.historyPath());
    EXPECT_NE(text.find("\"id\":\"" + items[0].id.text() + "\""), std::string::npos);
    EXPECT_NE(text.find("\"kind\":\"files\""), std::string::npos);
    EXPECT_NE(text.find("\"date\":800000000.25"), std::string::npos);
}

TEST(ClipboardStore, ACorruptHistoryIsSetAsideNeverOverwritten) {
    TemporaryDirectory temp;
    const ClipboardStore store(temp.path());
    ASSERT_TRUE(store.save({sample()}));
    const std::string good = TemporaryDirectory::read(store.historyPath());
    const std::string truncated = good.substr(0, good.size() / 2);
    TemporaryDirectory::write(store.historyPath(), truncated);

    auto loaded = store.load();
    EXPECT_TRUE(loaded.items.empty());
    ASSERT_TRUE(loaded.setAside);
    EXPECT_EQ(TemporaryDirectory::read(*loaded.setAside), truncated);
    ASSERT_TRUE(store.save({sample()}));
    EXPECT_EQ(TemporaryDirectory::read(*loaded.setAside), truncated);

    // A well-formed file of the wrong shape is just as unreadable, and a second bad file
    // does not replace the first one set aside.
    TemporaryDirectory::write(store.historyPath(), R"([{"id":"not-a-uuid","kind":"text"}])");
    loaded = store.load();
    ASSERT_TRUE(loaded.setAside);
    EXPECT_EQ(loaded.setAside->filename().string(), "history.json.corrupt-2");
    EXPECT_FALSE(std::filesystem::exists(store.historyPath()));
}

TEST(ClipboardStore, TheFileIsPlainJsonWithEveryMemberInByteOrder) {
    ClipItem item = sample();
    item.text = "quote\" backslash\\ slash/ \b\f\n\r\t \x01\x1f\x7f ünï 😀";
    item.filePaths = std::vector<std::string>{"/a", "/b \"c\""};
    item.imageType = "public.png";
    item.imageHash = std::string(64, 'f');
    // What the general JSON writer makes of the same members.
    Json json = Json::emptyObject();
    json.set("id", item.id.text());
    json.set("kind", "text");
    json.set("text", *item.text);
    json.set("rich", Json(Json::Object{{"public.rtf", "AAEC/w=="}}));
    json.set("filePaths", Json(Json::Array{"/a", "/b \"c\""}));
    json.set("imageType", "public.png");
    json.set("imageHash", *item.imageHash);
    json.set("app", "com.example.editor");
    json.set("date", 800000000.25);
    ClipItem bare;
    bare.id = Uuid::random();
    bare.date = 1;
    const std::string text = ClipboardHistoryFile::encode({item, bare});
    EXPECT_EQ(text, "[" + json.serialize() + R"(,{"date":1.0,"id":")" + bare.id.text() +
                        R"(","kind":"text"}])");
    const auto decoded = ClipboardHistoryFile::decode(text);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(*decoded, (ClipItems{item, bare}));

    // Ill-formed bytes are written as U+FFFD, so the file always reads back.
    item.text = "bad \xff byte";
    EXPECT_EQ(ClipboardHistoryFile::decode(ClipboardHistoryFile::encode({item}))->front().text,
              "bad \xEF\xBF\xBD byte");
}

TEST(ClipboardStore, TheReaderTakesAnyValidLayoutAndNothingElse) {
    const std::string id = Uuid::random().text();
    const auto decode = [](const std::string& text) { return ClipboardHistoryFile::decode(text); };
    // Any order, white space, escapes, nulls and members of a later version.
    const auto loose = decode(
        " [ { \"kind\" : \"files\", \"future\": {\"a\": [1, {\"b\": null}]},"
        " \"filePaths\": [\"/x\\u00e9\\ud83d\\ude00\"], \"text\": null,"
        " \"date\": 5, \"id\": \"" +
        id + "\" } ] ");
    ASSERT_TRUE(loose);
    EXPECT_EQ(loose->front().filePaths, std::vector<std::string>{"/xé😀"});
    EXPECT_EQ(loose->front().date, 5);
    EXPECT_FALSE(loose->front().text);
    EXPECT_TRUE(decode("[]"));

    // Every cut of a good file is refused, as are damaged and ill-shaped ones.
    const std::string good = ClipboardHistoryFile::encode({sample(), sample()});
    for (std::size_t length = 0; length < good.size(); ++length) {
        EXPECT_FALSE(decode(good.substr(0, length))) << "cut at " << length;
    }
    const std::string item = R"({"date":1,"id":")" + id + R"(","kind":"text")";
    for (const std::string& bad : {
             "[" + item + "}]x",                               // text after the array
             "[" + item + R"(,"kind":"text"}])",               // a member twice
             std::string(R"([{"date":1,"kind":"text"}])"),     // no id
             "[" + item + R"(,"text":5}])",                    // a member of the wrong kind
             "[" + item + R"(,"rich":{"public.rtf":"A"}}])",   // not base64
             "[" + item + ",\"text\":\"\xC3\x28\"}]",          // not UTF-8
             "[" + item + R"(,"text":"\ud800"}])",             // a lone surrogate
             "[" + item + ",\"text\":\"a\nb\"}]",              // a raw control character
             "[" + item + R"(,"future":[[[[[[[[1]]]]]]]]}])",  // nested too deep
             std::string(R"([{"date":1,"id":")") + id + R"(","kind":"sound"}])",
         }) {
        EXPECT_FALSE(decode(bad)) << bad;
    }
}

TEST(ClipboardStore, PruningLeavesOnlyTheKeptImages) {
    TemporaryDirectory temp;
    const ClipboardStore store(temp.path());
    const Uuid kept = Uuid::random();
    const Uuid dropped = Uuid::random();
    store.writeImage(kept, {1});
    store.writeImage(dropped, {2});
    TemporaryDirectory::write(temp / "Images" / "stray.png", "x");
    store.save({});
    store.removeOrphanImages({kept});
    EXPECT_TRUE(std::filesystem::exists(store.imagePath(kept)));
    EXPECT_FALSE(std::filesystem::exists(store.imagePath(dropped)));
    EXPECT_FALSE(std::filesystem::exists(temp / "Images" / "stray.png"));
    EXPECT_TRUE(std::filesystem::exists(store.historyPath()));
    store.clear();
    EXPECT_FALSE(std::filesystem::exists(store.historyPath()));
    EXPECT_FALSE(std::filesystem::exists(store.imagePath(kept)));
}

}  // namespace
}  // namespace quorvane
