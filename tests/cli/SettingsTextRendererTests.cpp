#include "cli/SettingsTextRenderer.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

namespace quorvane {
namespace {

SettingsRow::Shortcut shortcut(std::string label, std::string keys, bool conflict) {
    SettingsRow::Shortcut row;
    row.label = std::move(label);
    row.displayText = [keys] { return keys; };
    row.hasConflict = [conflict] { return conflict; };
    row.conflictNotice = "Another app uses this shortcut.";
    return row;
}

using R = SettingsRow;

// One page that uses every row kind, so a kind the text renderer forgets shows in the golden
// file (and one it cannot print at all fails to compile).
SettingsPage everyRowKind() {
    SettingsPage page;
    page.add({"Behaviour",
              {{R::Toggle{"Snap while dragging", [] { return true; }, {}, "Hold ⌥ to skip."}, {}},
               {R::Toggle{"Hidden", [] { return false; }, {}, ""}, [] { return false; }},
               {R::Choice{"Gap",
                          {{"none", "None"}, {"small", "Small"}, {"large", "Large"}},
                          [] { return std::string("small"); },
                          {}},
                {}},
               {R::Slider{"Speed",
                          0.5,
                          3,
                          0.5,
                          [] { return 1.5; },
                          {},
                          [](double v) { return std::to_string(static_cast<int>(v * 100)) + "%"; }},
                {}},
               {R::Slider{"Threshold", 0, 1, 0, [] { return 0.25; }, {}, {}}, {}},
               {R::Stepper{"Items", 5, 500, 5, [] { return std::int64_t{50}; }, {}, {}}, {}},
               {R::TextField{"Name", "Untitled", [] { return std::string(); }, {}}, {}},
               {R::TextField{"Prefix", "", [] { return std::string(";;"); }, {}}, {}},
               {R::TextField{"Suffix", "", [] { return std::string(); }, {}}, {}}},
              "Changes apply at once."});
    page.add({"Shortcuts",
              {{shortcut("Open", "⌃⌥Space", true), {}}, {shortcut("Clear", "", false), {}}},
              ""});
    page.add(
        {"Lists",
         {{R::AppList{"Excluded apps",
                      [] {
                          return std::vector<R::AppEntry>{{"com.example.mail", "Mail"},
                                                          {"org.example.tool", ""}};
                      },
                      {},
                      {},
                      "No apps"},
           {}},
          {R::AppList{
               "Allowed apps", [] { return std::vector<R::AppEntry>{}; }, {}, {}, "Every app"},
           {}},
          {R::ItemList{"Recent",
                       [] {
                           return std::vector<std::string>{"one", "two"};
                       },
                       {},
                       ""},
           {}},
          {R::ItemList{"Pinned", [] { return std::vector<std::string>{}; }, {}, ""}, {}},
          {R::ItemList{"Saved", [] { return std::vector<std::string>{}; }, {}, "Nothing saved yet"},
           {}},
          {R::EditableList{";code",
                           "",
                           "minus.circle",
                           "Add Snippet",
                           [] {
                               return std::vector<R::EditableEntry>{{";a", "Alpha", ""},
                                                                    {";ab", "", "Never fires."},
                                                                    {"", "Two\nlines", ""}};
                           },
                           {},
                           {},
                           {},
                           {},
                           {}},
           {}}},
         ""});
    page.add({"",
              {{R::Note{"Works in every app."}, {}},
               {R::Warning{"Needs Accessibility."}, {}},
               {R::Button{"Reset", {}, R::ButtonRole::destructive}, {}},
               {R::Custom{"mixer", [] { return std::string("Mixer: 2 apps"); }}, {}},
               {R::Custom{"bands", {}}, {}}},
              ""});
    return page;
}

std::string goldenPath(const char* name) {
    return std::string(QUORVANE_TEST_SOURCE_DIR) + "/cli/golden/" + name;
}

TEST(SettingsTextRenderer, PrintsEveryRowKindAsInTheGoldenFile) {
    const std::string text = SettingsTextRenderer::render(everyRowKind());
    const std::string path = goldenPath("every-row-kind.txt");
    // tests/cli/update_golden.sh sets this to write the file on purpose after a change.
    if (std::getenv("QUORVANE_UPDATE_GOLDEN") != nullptr) {
        std::ofstream(path, std::ios::binary) << text;
    }
    std::ifstream in(path, std::ios::binary);
    ASSERT_TRUE(in) << path;
    std::ostringstream golden;
    golden << in.rdbuf();
    EXPECT_EQ(text, golden.str());
}

// A page stays open while the tool works: an error that arrives, changes or clears after the page
// was built must show as it is now, whether the tool keeps it as text or as an optional.
TEST(SettingsTextRenderer, ErrorWarningsAreReadWhenDrawn) {
    std::string error;
    std::optional<std::string> maybeError;
    SettingsPage page;
    page.add({"", {SettingsRow::errorWarning(error), SettingsRow::errorWarning(maybeError)}, ""});
    EXPECT_EQ(SettingsTextRenderer::render(page).find('!'), std::string::npos);
    error = "first failure";
    maybeError = "other failure";
    EXPECT_NE(SettingsTextRenderer::render(page).find("! first failure"), std::string::npos);
    EXPECT_NE(SettingsTextRenderer::render(page).find("! other failure"), std::string::npos);
    error = "second failure";
    maybeError = "";
    const std::string text = SettingsTextRenderer::render(page);
    EXPECT_NE(text.find("! second failure"), std::string::npos);
    EXPECT_EQ(text.find("first"), std::string::npos);
    EXPECT_EQ(text.find("other"), std::string::npos);
}

}  // namespace
}  // namespace quorvane
