#include <array>
#include <cstdio>

#include "tools/input/SmoothScrollingTool.hpp"

namespace quorvane {

namespace {

struct SpeedChoice {
    double speed;
    const char* title;
};

constexpr std::array<SpeedChoice, 5> kSpeeds = {{
    {0.5, "Slower"},
    {0.75, "Slow"},
    {1.0, "Normal"},
    {1.5, "Fast"},
    {2.0, "Faster"},
}};

std::string speedValue(double speed) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", speed);
    return text;
}

}  // namespace

SettingsPage SmoothScrollingTool::settingsPage() {
    SettingsRow::Choice speedRow{"Speed", {}, nullptr, nullptr};
    for (const auto& choice : kSpeeds) {
        speedRow.options.push_back({speedValue(choice.speed), choice.title});
    }
    speedRow.get = [this] { return speedValue(speed()); };
    speedRow.set = [this](const std::string& value) {
        for (const auto& choice : kSpeeds) {
            if (value == speedValue(choice.speed)) {
                setSpeed(choice.speed);
            }
        }
    };
    SettingsRow::Choice glideRow{"Glide",
                                 {{std::string(rawValue(Glide::shortGlide)), "Short"},
                                  {std::string(rawValue(Glide::medium)), "Medium"},
                                  {std::string(rawValue(Glide::longGlide)), "Long"}},
                                 [this] { return std::string(rawValue(glide())); },
                                 [this](const std::string& raw) {
                                     if (const auto chosen = glideFromRawValue(raw)) {
                                         setGlide(*chosen);
                                     }
                                 }};

    SettingsSection scrolling{"", {}, ""};
    scrolling.rows.push_back({std::move(speedRow), {}});
    scrolling.rows.push_back({std::move(glideRow), {}});
    scrolling.rows.push_back(
        {SettingsRow::Note{
             "Only regular mouse wheels change. Trackpads and the Magic Mouse already "
             "scroll smoothly. Holding ⌘, ⌥, ⌃ or ⇧ while scrolling works as before "
             "(for zooming and sideways scrolling). Terminals and games keep the "
             "normal one-step-per-notch wheel."},
         {}});
    scrolling.rows.push_back(SettingsRow::errorWarning(lastError_));

    SettingsSection pointer{"", {}, ""};
    pointer.rows.push_back(
        {SettingsRow::Note{"If the pointer feels floaty or hard to aim, turn off Pointer "
                           "acceleration in Mouse › Advanced. It's macOS's own switch, and your "
                           "Tracking speed slider keeps working."},
         {}});
    pointer.rows.push_back(
        {SettingsRow::Button{"Open Mouse Settings", [this] { openMouseSettings(); }}, {}});

    SettingsPage page;
    page.add(std::move(scrolling)).add(std::move(pointer));
    return page;
}

}  // namespace quorvane
