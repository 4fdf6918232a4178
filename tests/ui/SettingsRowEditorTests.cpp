#include "ui/SettingsRowEditor.hpp"

#include <gtest/gtest.h>

#include <set>

namespace quorvane {
namespace {

// A page with one row of every kind the editor writes, each bound to a plain variable.
struct Bound {
    bool on = false;
    std::string choice = "left";
    double slider = 0.5;
    std::int64_t stepper = 10;
    std::string text;
    std::set<std::string> apps;

    SettingsPage page() {
        SettingsRow::Toggle toggle;
        toggle.label = "Show in Menu Bar";
        toggle.get = [this] { return on; };
        toggle.set = [this](bool v) { on = v; };
        SettingsRow::Choice side;
        side.label = "Side:";
        side.options = {{"left", "Left Edge"}, {"right", "Right Edge"}};
        side.get = [this] { return choice; };
        side.set = [this](const std::string& v) { choice = v; };
        SettingsRow::Slider speed;
        speed.label = "Speed";
        speed.minimum = 0.1;
        speed.maximum = 2.0;
        speed.get = [this] { return slider; };
        speed.set = [this](double v) { slider = v; };
        SettingsRow::Stepper minutes;
        minutes.label = "Minutes";
        minutes.minimum = 5;
        minutes.maximum = 60;
        minutes.step = 5;
        minutes.get = [this] { return stepper; };
        minutes.set = [this](std::int64_t v) { stepper = v; };
        SettingsRow::TextField folder;
        folder.label = "Folder…";
        folder.get = [this] { return text; };
        folder.set = [this](const std::string& v) { text = v; };
        SettingsRow::AppList excluded;
        excluded.label = "Excluded Apps";
        excluded.add = [this](const std::string& id) { apps.insert(id); };
        excluded.remove = [this](const std::string& id) { apps.erase(id); };
        SettingsRow::Toggle readOnly;
        readOnly.label = "Read Only";
        SettingsRow::Button button;
        button.title = "Speed";
        SettingsRow::Shortcut shortcut;
        shortcut.label = "Shortcut";
        SettingsRow::Toggle twice;
        twice.label = "Twice";
        SettingsRow::Toggle twiceAgain;
        twiceAgain.label = "twice:";

        const auto row = [](SettingsRow::Kind kind) {
            SettingsRow made;
            made.kind = std::move(kind);
            return made;
        };
        SettingsSection section;
        for (SettingsRow::Kind kind : std::initializer_list<SettingsRow::Kind>{
                 toggle, side, speed, minutes, folder, excluded, readOnly, button, shortcut}) {
            section.rows.push_back(row(std::move(kind)));
        }
        SettingsSection second;
        second.rows = {row(twice), row(twiceAgain)};
        return SettingsPage{}.add(section).add(second);
    }
};

TEST(SettingsRowEditor, EveryKindTakesItsTextsAndTheLabelIgnoresCaseColonAndEllipsis) {
    Bound bound;
    const SettingsPage page = bound.page();
    std::string error;
    const auto set = [&](std::string_view label, std::string_view value) {
        error.clear();
        return SettingsRowEditor::set(page, label, value, error);
    };
    EXPECT_TRUE(set("show in menu bar", "ON"));
    EXPECT_TRUE(bound.on);
    EXPECT_TRUE(set("Show in Menu Bar", "0"));
    EXPECT_FALSE(bound.on);
    EXPECT_TRUE(set("side", "right"));
    EXPECT_EQ(bound.choice, "right");
    EXPECT_TRUE(set("Side:", "left edge")) << "an option's title works as well as its value";
    EXPECT_EQ(bound.choice, "left");
    EXPECT_TRUE(set("Speed", "1.25")) << "the button with the same label is no setting";
    EXPECT_EQ(bound.slider, 1.25);
    EXPECT_TRUE(set("minutes", "60"));
    EXPECT_EQ(bound.stepper, 60);
    EXPECT_TRUE(set("folder", "~/Desktop"));
    EXPECT_EQ(bound.text, "~/Desktop");
    EXPECT_TRUE(set("Excluded Apps", "+com.example.a"));
    EXPECT_TRUE(set("Excluded Apps", "+com.example.b"));
    EXPECT_TRUE(set("Excluded Apps", "-com.example.a"));
    EXPECT_EQ(bound.apps, std::set<std::string>{"com.example.b"});
}

TEST(SettingsRowEditor, RefusalsSayWhyAndWriteNothing) {
    Bound bound;
    const SettingsPage page = bound.page();
    const struct {
        const char* label;
        const char* value;
        const char* reason;
    } cases[] = {
        {"Show in Menu Bar", "maybe", "takes on or off"},
        {"Side", "top", "is one of: Left Edge, Right Edge"},
        {"Speed", "2.5", "from 0.1 to 2"},
        {"Speed", "1.0x", "from 0.1 to 2"},
        {"Speed", "nan", "from 0.1 to 2"},
        {"Minutes", "12", "in steps of 5"},
        {"Minutes", "65", "from 5 to 60"},
        {"Minutes", "", "from 5 to 60"},
        {"Excluded Apps", "com.example.a", "+ID to add"},
        {"Excluded Apps", "+", "+ID to add"},
        {"Read Only", "on", "is read-only"},
        {"Shortcut", "⌘K", "only be changed in the settings window"},
        {"Twice", "on", "more than one setting"},
        {"Nothing Like It", "on", "no setting is labelled"},
        {"", "on", "no setting is labelled"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.label) + " = " + c.value);
        std::string error;
        EXPECT_FALSE(SettingsRowEditor::set(page, c.label, c.value, error));
        EXPECT_NE(error.find(c.reason), std::string::npos) << error;
    }
    EXPECT_FALSE(bound.on);
    EXPECT_EQ(bound.choice, "left");
    EXPECT_EQ(bound.slider, 0.5);
    EXPECT_EQ(bound.stepper, 10);
    EXPECT_TRUE(bound.apps.empty());
}

}  // namespace
}  // namespace quorvane
