#include "tools/system/HideMenuBarIconsTool.hpp"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "platform/MenuBar.hpp"
#include "platform/Preferences.hpp"
#include "platform/Scheduler.hpp"

namespace quorvane {

namespace {

std::int64_t validAutoHide(std::optional<std::int64_t> stored) {
    const auto& choices = HideMenuBarIconsTool::autoHideChoices();
    return stored && std::find(choices.begin(), choices.end(), *stored) != choices.end()
               ? *stored
               : HideMenuBarIconsTool::kDefaultAutoHide;
}

}  // namespace

const std::vector<std::int64_t>& HideMenuBarIconsTool::autoHideChoices() {
    static const std::vector<std::int64_t> choices{0, 5, 10, 30, 60};
    return choices;
}

HideMenuBarIconsTool::HideMenuBarIconsTool(const ToolDescriptor& descriptor,
                                           const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      autoHide_(validAutoHide(platform.preferences.integer(kAutoHideKey))) {}

HideMenuBarIconsTool::~HideMenuBarIconsTool() {
    stop();
}

void HideMenuBarIconsTool::start() {
    if (arrow_) {
        return;
    }
    arrow_ = platform_.menuBar.makeStatusItem(MenuBar::kVariableLength);
    arrow_->setAutosaveName("hideMenuBarIcons.arrow");
    arrow_->setAction([this] { toggle(); });
    separator_ = platform_.menuBar.makeStatusItem(kShownLength);
    separator_->setAutosaveName("hideMenuBarIcons.separator");
    separator_->setTitle(kSeparatorTitle);
    setHiding(true);
}

void HideMenuBarIconsTool::stop() {
    if (!arrow_) {
        return;
    }
    autoHideTimer_.cancel();
    separator_.reset();
    arrow_.reset();
    hiding_ = false;
    publish();
}

void HideMenuBarIconsTool::toggle() {
    if (arrow_) {
        setHiding(!hiding_);
    }
}

void HideMenuBarIconsTool::setHiding(bool hiding) {
    hiding_ = hiding;
    autoHideTimer_.cancel();
    separator_->setLength(hiding ? kHiddenLength : kShownLength);
    // The separator's bar marks the edge only while there is something beyond it to see.
    separator_->setTitle(hiding ? "" : kSeparatorTitle);
    arrow_->setImage(hiding ? kShowImage : kHideImage,
                     hiding ? "Show hidden menu bar icons" : "Hide menu bar icons");
    if (!hiding && autoHide_ > 0) {
        autoHideTimer_ = platform_.scheduler.after(Seconds{static_cast<double>(autoHide_)},
                                                   [this] { setHiding(true); });
    }
    publish();
}

void HideMenuBarIconsTool::setAutoHideSeconds(std::int64_t seconds) {
    autoHide_ = validAutoHide(seconds);
    platform_.preferences.set(kAutoHideKey, PreferenceValue(autoHide_));
    if (arrow_ && !hiding_) {
        setHiding(false);  // the new delay counts from now
    } else {
        publish();
    }
}

SettingsPage HideMenuBarIconsTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    std::vector<SettingsRow::ChoiceOption> options;
    for (const auto seconds : autoHideChoices()) {
        options.push_back({std::to_string(seconds),
                           seconds == 0 ? "Never" : "After " + std::to_string(seconds) + " s"});
    }
    section.rows.push_back({SettingsRow::Choice{"Hide again", std::move(options),
                                                [this] { return std::to_string(autoHide_); },
                                                [this](const std::string& value) {
                                                    setAutoHideSeconds(
                                                        std::strtoll(value.c_str(), nullptr, 10));
                                                }},
                            {}});
    section.rows.push_back(
        {SettingsRow::Note{"Hold ⌘ and drag the icons you rarely need to the left of the │ "
                           "separator. Click the arrow beside it to show them; they hide again "
                           "after the time chosen here. Icons that macOS itself places, such as "
                           "Control Center and the clock, cannot be moved. Turning this off "
                           "shows every icon again."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

std::optional<ToolControl> HideMenuBarIconsTool::control() {
    return ToolControl{"Hidden Icons", "menubar.arrow.up.rectangle",
                       [this] { return arrow_ && !hiding_; }, [this] { toggle(); }};
}

}  // namespace quorvane
