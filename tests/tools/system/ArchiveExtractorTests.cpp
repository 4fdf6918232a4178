#include "tools/system/ArchiveExtractor.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "portable/SystemArchives.hpp"
#include "support/TemporaryDirectory.hpp"
#include "tools/system/ArchivePaths.hpp"

#ifdef QUORVANE_HAVE_LIBARCHIVE
#include <archive.h>
#include <archive_entry.h>
#endif

namespace quorvane {
namespace {

namespace fs = std::filesystem;

TEST(ArchivePathsTest, RefusesAbsolutePathsAndAnyClimbOut) {
    for (const char* bad : {"../evil", "a/../../evil", "a/../b", "/etc/passwd", "//x", "\\x",
                            "C:evil", "", ".", "./", "..", "a/.."}) {
        EXPECT_FALSE(ArchivePaths::inside(bad)) << bad;
    }
    EXPECT_EQ(ArchivePaths::inside("./a//b/"), "a/b");
    EXPECT_EQ(ArchivePaths::inside("a/..b"), "a/..b");

    EXPECT_TRUE(ArchivePaths::linkStaysInside("a/link", "../b"));
    EXPECT_TRUE(ArchivePaths::linkStaysInside("a/link", "c/d"));
    EXPECT_FALSE(ArchivePaths::linkStaysInside("link", "../outside"));
    EXPECT_FALSE(ArchivePaths::linkStaysInside("a/link", "../../outside"));
    EXPECT_FALSE(ArchivePaths::linkStaysInside("a/link", "/etc"));
    EXPECT_FALSE(ArchivePaths::linkStaysInside("link", "."));
}

TEST(ArchivePathsTest, NamesTheFolderBesideAfterTheArchiveWithoutTakingAName) {
    const auto none = [](const std::string&) { return false; };
    EXPECT_EQ(ArchivePaths::besideFolderName("Photos.tar.gz", none), "Photos");
    EXPECT_EQ(ArchivePaths::besideFolderName("Backup.7z", none), "Backup");
    EXPECT_EQ(ArchivePaths::besideFolderName(".rar", none), ".rar");
    EXPECT_EQ(ArchivePaths::besideFolderName(
                  "Photos.rar",
                  [](const std::string& name) { return name == "Photos" || name == "Photos 2"; }),
              "Photos 3");
}

#ifdef QUORVANE_HAVE_LIBARCHIVE

struct Member {
    std::string path;
    std::string content = {};
    ArchiveEntry::Type type = ArchiveEntry::Type::file;
    std::string linkTarget = {};
};

// A tar archive written with the library's own write API.
void writeTar(const fs::path& file, const std::vector<Member>& members) {
    archive* writer = archive_write_new();
    archive_write_set_format_pax_restricted(writer);
    ASSERT_EQ(archive_write_open_filename(writer, file.c_str()), ARCHIVE_OK);
    for (const auto& member : members) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, member.path.c_str());
        archive_entry_set_perm(entry, 0644);
        switch (member.type) {
            case ArchiveEntry::Type::directory:
                archive_entry_set_filetype(entry, AE_IFDIR);
                break;
            case ArchiveEntry::Type::symbolicLink:
                archive_entry_set_filetype(entry, AE_IFLNK);
                archive_entry_set_symlink(entry, member.linkTarget.c_str());
                break;
            default:
                archive_entry_set_filetype(entry, AE_IFREG);
                archive_entry_set_size(entry, static_cast<la_int64_t>(member.content.size()));
        }
        archive_write_header(writer, entry);
        if (!member.content.empty()) {
            archive_write_data(writer, member.content.data(), member.content.size());
        }
        archive_entry_free(entry);
    }
    archive_write_close(writer);
    archive_write_free(writer);
}

struct ArchiveExtractorTest : ::testing::Test {
    TemporaryDirectory folder;
    std::unique_ptr<Archives> archives = makeSystemArchives();
    fs::path archive = folder / "test.tar";
    fs::path target = folder / "out";
    std::vector<std::string> written;
    std::string error;
};

TEST_F(ArchiveExtractorTest, ListsAndExtractsMembersAndLinksThatStayInside) {
    writeTar(archive, {{"docs/", "", ArchiveEntry::Type::directory},
                       {"docs/readme.txt", "hello"},
                       {"docs/latest", "", ArchiveEntry::Type::symbolicLink, "readme.txt"}});
    std::vector<ArchiveEntry> entries;
    ASSERT_TRUE(ArchiveExtractor::list(*archives, archive.string(), entries, error)) << error;
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[1].size, 5);

    ASSERT_TRUE(
        ArchiveExtractor::extract(*archives, archive.string(), target.string(), written, error))
        << error;
    EXPECT_EQ(TemporaryDirectory::read(target / "docs/readme.txt"), "hello");
    EXPECT_EQ(fs::read_symlink(target / "docs/latest"), "readme.txt");
    EXPECT_EQ(written.size(), 3u);
}

TEST_F(ArchiveExtractorTest, RefusesTheWholeArchiveWhenAnyMemberWouldEscape) {
    const std::vector<std::vector<Member>> hostile = {
        {{"fine.txt", "ok"}, {"../escaped.txt", "bad"}},
        {{"fine.txt", "ok"}, {(folder / "absolute.txt").string(), "bad"}},
        {{"fine.txt", "ok"}, {"link", "", ArchiveEntry::Type::symbolicLink, "../"}},
        {{"fine.txt", "ok"}, {"link", "", ArchiveEntry::Type::symbolicLink, "/etc"}},
    };
    for (const auto& members : hostile) {
        writeTar(archive, members);
        error.clear();
        EXPECT_FALSE(ArchiveExtractor::extract(*archives, archive.string(), target.string(),
                                               written, error));
        EXPECT_NE(error.find("nothing was extracted"), std::string::npos) << error;
        EXPECT_FALSE(fs::exists(target));
        EXPECT_FALSE(fs::exists(folder / "escaped.txt"));
        EXPECT_FALSE(fs::exists(folder / "absolute.txt"));
    }
}

TEST_F(ArchiveExtractorTest, NeverReplacesAFileAndSaysWhatIsNotAnArchive) {
    writeTar(archive, {{"note.txt", "new"}});
    fs::create_directories(target);
    TemporaryDirectory::write(target / "note.txt", "mine");
    EXPECT_FALSE(
        ArchiveExtractor::extract(*archives, archive.string(), target.string(), written, error));
    EXPECT_EQ(TemporaryDirectory::read(target / "note.txt"), "mine");

    TemporaryDirectory::write(folder / "plain.txt", "just text, no archive");
    std::vector<ArchiveEntry> entries;
    error.clear();
    EXPECT_FALSE(
        ArchiveExtractor::list(*archives, (folder / "plain.txt").string(), entries, error));
    EXPECT_FALSE(error.empty());
}

#endif

}  // namespace
}  // namespace quorvane
