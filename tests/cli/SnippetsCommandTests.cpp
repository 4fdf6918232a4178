#include "cli/SnippetsCommand.hpp"

#include <gtest/gtest.h>

#include <sstream>

#include "base/Json.hpp"
#include "cli/CommandHost.hpp"
#include "cli/CommandLine.hpp"
#include "portable/FilePreferences.hpp"
#include "portable/MemoryPreferences.hpp"
#include "support/FileCommandHost.hpp"
#include "support/TemporaryDirectory.hpp"
#include "tools/keyboard/SnippetStore.hpp"

namespace quorvane {
namespace {

struct SnippetsCommandTest : ::testing::Test {
    MemoryPreferences preferences;
    TemporaryDirectory dir;
    std::string out;
    std::string error;

    bool run(std::vector<std::string> operands) {
        std::ostringstream stream;
        error.clear();
        const bool ok = SnippetsCommand::run(preferences, operands, stream, error);
        out = stream.str();
        return ok;
    }
    std::vector<std::string> triggers() const {
        std::vector<std::string> result;
        for (const auto& snippet : SnippetStore::load(preferences).snippets) {
            result.push_back(snippet.trigger);
        }
        return result;
    }
    std::optional<PreferenceValue> stored() const { return preferences.object(SnippetStore::kKey); }
};

TEST_F(SnippetsCommandTest, AddListAndRemoveWorkOnTheStoredList) {
    ASSERT_TRUE(run({"list"})) << error;
    EXPECT_EQ(out, ";date   {date}\n;time   {time}\n;shrug  ¯\\_(ツ)_/¯\n")
        << "a first run lists the starting snippets";

    ASSERT_TRUE(run({"add", ";addr", "1 Main St\nSpringfield"})) << error;
    ASSERT_TRUE(run({"add", ";a", "A"})) << error;
    EXPECT_EQ(out, "") << "the new, shorter code is fine; the older one is the one shadowed";
    ASSERT_TRUE(run({"add", ";x", ""})) << error;
    EXPECT_EQ(out, "It never fires: a code needs at least two characters and some text.\n");
    EXPECT_FALSE(run({"add", ";a", "again"}));
    EXPECT_EQ(error, "there is already a snippet with the code \";a\"");

    ASSERT_TRUE(run({"list"}));
    EXPECT_NE(out.find(";addr   1 Main St\\nSpringfield\n    ! “;addr” will never work: “;a” "
                       "fires as soon as you've typed it. Rename one of them.\n"),
              std::string::npos)
        << out;
    ASSERT_TRUE(run({"list", "--json"}));
    const auto json = Json::parse(out);
    ASSERT_TRUE(json);
    EXPECT_EQ(Snippet::listFromJson(*json)->size(), 6u);

    ASSERT_TRUE(run({"remove", ";time"})) << error;
    EXPECT_EQ(triggers(), (std::vector<std::string>{";date", ";shrug", ";addr", ";a", ";x"}));
    const auto before = stored();
    EXPECT_FALSE(run({"remove", ";nope"}));
    EXPECT_EQ(error, "there is no snippet with the code \";nope\"");
    EXPECT_EQ(stored(), before);
}

TEST_F(SnippetsCommandTest, ExportThenImportMergesByCodeAndReportsWhatItSkipped) {
    ASSERT_TRUE(run({"add", ";sig", "Best, Ann"}));
    const auto file = dir / "snippets.json";
    ASSERT_TRUE(run({"export", file.string()})) << error;
    EXPECT_EQ(out, "Exported 4 snippets to " + file.string() + ".\n");
    const auto exported = SnippetStore::decode(TemporaryDirectory::read(file));
    ASSERT_TRUE(exported);
    EXPECT_EQ(*exported, SnippetStore::load(preferences).snippets) << "ids and all";

    ASSERT_TRUE(run({"remove", ";sig"}));
    ASSERT_TRUE(run({"remove", ";time"}));
    ASSERT_TRUE(run({"add", ";time", "my own time"}));
    ASSERT_TRUE(run({"import", file.string()})) << error;
    EXPECT_EQ(out,
              "Imported 1 snippet.\nSkipped 3 whose code is already used: ;date ;time ;shrug\n");
    EXPECT_EQ(triggers(), (std::vector<std::string>{";date", ";shrug", ";time", ";sig"}));
    EXPECT_EQ(SnippetStore::load(preferences).snippets[2].text, "my own time");
}

TEST_F(SnippetsCommandTest, BadFilesAndUnreadableStoredSnippetsChangeNothing) {
    ASSERT_TRUE(run({"add", ";sig", "Best"}));
    const auto before = stored();
    const auto file = dir / "bad.json";
    for (const std::string text :
         {"", "{", "{\"id\":1}", "[{\"id\":\"nope\",\"trigger\":\";a\",\"text\":\"b\"}]",
          "[{\"id\":\"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\",\"trigger\":\";a\"}]"}) {
        TemporaryDirectory::write(file, text);
        EXPECT_FALSE(run({"import", file.string()})) << text;
        EXPECT_EQ(error.rfind(file.string() + " is not a snippets file: ", 0), 0u) << error;
        EXPECT_EQ(stored(), before);
    }
    EXPECT_FALSE(run({"import", (dir / "missing.json").string()}));
    EXPECT_FALSE(run({"export", (dir / "no-such-dir" / "x.json").string()}));
    EXPECT_FALSE(run({"add", ";only-code"}));
    EXPECT_EQ(error.rfind("usage: quorvane snippets ", 0), 0u);

    preferences.set(SnippetStore::kKey, PreferenceValue::Data{'{'});
    for (const auto& operands : std::vector<std::vector<std::string>>{
             {"list"}, {"add", ";new", "x"}, {"remove", ";date"}, {"import", file.string()}}) {
        EXPECT_FALSE(run(operands));
        EXPECT_EQ(error,
                  "the saved snippets (textSnippets.snippets) cannot be read; fix or remove them "
                  "first");
    }
    EXPECT_EQ(*stored(), PreferenceValue(PreferenceValue::Data{'{'}));
}

TEST(SnippetsCommandLine, TheCommandReachesTheStoredListAndTheToolsPageShowsIt) {
    TemporaryDirectory dir;
    FileCommandHost host;
    host.file = dir / "preferences.json";
    CommandLine commandLine(host);
    const auto run = [&](std::vector<std::string> args, std::string* printed = nullptr) {
        std::ostringstream out;
        std::ostringstream err;
        const int status = commandLine.run(args, out, err);
        if (printed != nullptr) {
            *printed = out.str() + err.str();
        }
        return status;
    };
    EXPECT_EQ(run({"snippets", "add", ";sig", "Best, Ann"}), 0);
    std::string page;
    EXPECT_EQ(run({"settings", "text-snippets"}, &page), 0);
    EXPECT_NE(page.find(";sig → \"Best, Ann\""), std::string::npos) << page;
    EXPECT_NE(page.find("[Add Snippet]"), std::string::npos);
    std::string refusal;
    EXPECT_EQ(run({"snippets", "rename"}, &refusal), 2);
    EXPECT_EQ(refusal.rfind("quorvane: usage: quorvane snippets list", 0), 0u) << refusal;
}

}  // namespace
}  // namespace quorvane
