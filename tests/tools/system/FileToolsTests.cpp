#include <gtest/gtest.h>

#include <filesystem>

#include "platform/PasteboardType.hpp"
#include "support/CatalogDescriptor.hpp"
#include "support/FakePlatform.hpp"
#include "support/TemporaryDirectory.hpp"
#include "tools/system/AppUninstallerTool.hpp"
#include "tools/system/ArchivesTool.hpp"
#include "tools/system/FinderNewFileTool.hpp"
#include "tools/system/FinderRequest.hpp"
#include "tools/system/FreeUpSpaceTool.hpp"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

struct FileToolsTest : ::testing::Test {
    FakePlatform fakes;
    TemporaryDirectory home;

    FileToolsTest() { fakes.fileSystem.home = home.path().string(); }
    void put(const std::string& inside, std::size_t bytes) {
        const fs::path path = home.path() / inside;
        fs::create_directories(path.parent_path());
        TemporaryDirectory::write(path, std::string(bytes, 'x'));
    }
};

TEST(FinderRequestTest, DecodesOnlyWellFormedRequestsWithAbsolutePaths) {
    FinderRequest request{FinderRequest::Action::newFile, "/Users/me/Desktop", "md", {}};
    const auto back = FinderRequest::decode(request.encode());
    ASSERT_TRUE(back);
    EXPECT_EQ(back->folder, "/Users/me/Desktop");
    EXPECT_EQ(back->kind, "md");
    for (const char* bad : {"", "[]", "{\"action\":\"format-disk\"}",
                            "{\"action\":\"new-file\",\"folder\":\"Desktop\"}",
                            "{\"action\":\"new-file\",\"folder\":\"/x\",\"kind\":\"../txt\"}",
                            "{\"action\":\"copy-path\",\"items\":[]}",
                            "{\"action\":\"copy-path\",\"items\":[\"/a\",3]}"}) {
        EXPECT_FALSE(FinderRequest::decode(bad)) << bad;
    }
}

TEST_F(FileToolsTest, FinderMenuMakesNewFilesWithoutReplacingAnyAndCopiesPaths) {
    FinderNewFileTool tool(catalogDescriptor("finder-new-file"), fakes.platform());
    const std::string folder = home.path().string();
    const std::string newText =
        FinderRequest{FinderRequest::Action::newFile, folder, "txt", {}}.encode();
    fakes.finderExtension.send(newText);
    EXPECT_TRUE(tool.lastCreated().empty());  // off: the extension's messages are not heard

    tool.start();
    fakes.finderExtension.send(newText);
    fakes.finderExtension.send(newText);
    EXPECT_TRUE(fs::exists(home / "untitled.txt"));
    EXPECT_EQ(tool.lastCreated(), folder + "/untitled 2.txt");

    tool.setBaseName("a/b");
    EXPECT_FALSE(tool.lastError().empty());
    EXPECT_EQ(tool.baseName(), "untitled");
    tool.setBaseName("Notes");
    fakes.finderExtension.send(
        FinderRequest{FinderRequest::Action::newFile, folder + "/missing", "", {}}.encode());
    EXPECT_NE(tool.lastError().find("not a folder"), std::string::npos);

    fakes.finderExtension.send(
        FinderRequest{FinderRequest::Action::copyPath, "", "", {"/a b/c", "/d"}}.encode());
    EXPECT_EQ(fakes.pasteboard.string(pasteboard_type::string), "/a b/c\n/d");
    EXPECT_TRUE(tool.lastError().empty());
    fakes.finderExtension.send("garbage");
    EXPECT_FALSE(tool.lastError().empty());

    tool.stop();
    EXPECT_EQ(fakes.finderExtension.handlers.size(), 0u);
}

TEST_F(FileToolsTest, FreeUpSpaceTrashesOnlyWhatIsStillListedAndKeepsTheTrash) {
    put("Library/Caches/com.maker.app/a", 500);
    put("Library/Caches/com.keep.app/a", 400);
    put("Library/Logs/stuck.log", 300);
    put(".Trash/old", 100);
    fakes.workspace.add(7, "com.running.app");
    put("Library/Caches/com.running.app/a", 900);
    FreeUpSpaceTool tool(catalogDescriptor("free-up-space"), fakes.platform());
    EXPECT_TRUE(tool.needsSetup());
    tool.scan();
    ASSERT_EQ(tool.items().size(), 4u);
    tool.keep(1);  // com.keep.app, the second largest cache
    fakes.fileSystem.refused.insert(home.path().string() + "/Library/Logs/stuck.log");
    tool.moveToTrash();

    EXPECT_EQ(fakes.fileSystem.trashed,
              std::vector<std::string>{home.path().string() + "/Library/Caches/com.maker.app"});
    EXPECT_TRUE(fs::exists(home / "Library/Caches/com.keep.app"));
    EXPECT_TRUE(fs::exists(home / ".Trash/old"));
    ASSERT_EQ(tool.items().size(), 2u);
    EXPECT_NE(tool.lastError().find("stuck.log"), std::string::npos);
}

TEST_F(FileToolsTest, UninstallerListsTheAppAndItsLeftoversAndRefusesARunningApp) {
    put("Applications/Maker.app/Contents/MacOS/Maker", 1000);
    put("Library/Preferences/com.maker.app.plist", 10);
    put("Library/Preferences/com.maker.app.pro.plist", 10);
    const std::string bundle = home.path().string() + "/Applications/Maker.app";
    fakes.processFacts.bundleIDs[bundle] = "com.maker.app";
    AppUninstallerTool tool(catalogDescriptor("app-uninstaller"), fakes.platform());

    tool.choose(bundle);
    ASSERT_EQ(tool.items().size(), 2u) << tool.lastError();
    EXPECT_EQ(tool.items()[0].path, bundle);
    EXPECT_EQ(tool.items()[0].bytes, 1000u);
    tool.moveToTrash();
    EXPECT_EQ(fakes.fileSystem.trashed.size(), 2u);
    EXPECT_TRUE(fs::exists(home / "Library/Preferences/com.maker.app.pro.plist"));

    fakes.workspace.add(3, "com.maker.app.pro", "Maker Pro");
    tool.choose("com.maker.app.pro");
    EXPECT_TRUE(tool.items().empty());
    EXPECT_NE(tool.lastError().find("Quit Maker Pro"), std::string::npos);
    tool.choose("com.apple.Safari");
    EXPECT_NE(tool.lastError().find("part of macOS"), std::string::npos);
}

TEST_F(FileToolsTest, ArchivesAreExtractedBesideThemOnlyWhileTheToolIsOn) {
    ArchivesTool tool(catalogDescriptor("archives"), fakes.platform());
    const std::string archive = home.path().string() + "/Notes.zip";
    EXPECT_TRUE(tool.open(archive).empty());
    EXPECT_EQ(tool.lastError(), ArchivesTool::kOff);
    tool.start();
    TemporaryDirectory::write(archive, "not an archive at all");
    EXPECT_TRUE(tool.open(archive).empty());
    EXPECT_NE(tool.lastError().find("Notes.zip"), std::string::npos);
    EXPECT_EQ(tool.isAvailable(), fakes.archives->isAvailable());
}

}  // namespace
}  // namespace quorvane
