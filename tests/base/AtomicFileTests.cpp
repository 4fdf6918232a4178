#include "base/AtomicFile.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/TemporaryDirectory.hpp"

namespace quorvane {
namespace {

TEST(AtomicFile, ReplacesWholeOwnerOnlyWhateverTheUmaskAndAFailureLeavesTheOldFile) {
    TemporaryDirectory dir;
    const auto file = dir / "history.json";
    TemporaryDirectory::write(file, "old");
    ::chmod(file.c_str(), 0644);
    const mode_t previous = ::umask(022);
    std::string error;
    EXPECT_TRUE(writeFileAtomically(file, "new text", error)) << error;
    ::umask(previous);
    EXPECT_EQ(TemporaryDirectory::read(file), "new text");
    struct stat info {};
    ASSERT_EQ(::stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u) << "private text is never world-readable";

    // A destination that is a folder cannot be replaced: nothing changes, nothing is left over.
    const auto folder = dir / "folder";
    std::filesystem::create_directory(folder);
    TemporaryDirectory::write(folder / "inside", "kept");
    EXPECT_FALSE(writeFileAtomically(folder, "lost", error));
    EXPECT_EQ(error.rfind("cannot write " + folder.string() + ": ", 0), 0u) << error;
    EXPECT_EQ(TemporaryDirectory::read(folder / "inside"), "kept");
    std::size_t entries = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(dir.path())) {
        ++entries;
    }
    EXPECT_EQ(entries, 2u) << "no temporary file left beside it";

    EXPECT_FALSE(writeFileAtomically(dir / "missing" / "file", "x", error));
}

}  // namespace
}  // namespace quorvane
