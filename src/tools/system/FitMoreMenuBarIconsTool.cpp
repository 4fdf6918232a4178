#include "tools/system/FitMoreMenuBarIconsTool.hpp"

#include <algorithm>

#include "platform/Preferences.hpp"

namespace quorvane {

FitMoreMenuBarIconsTool::FitMoreMenuBarIconsTool(const ToolDescriptor& descriptor,
                                                 const Platform& platform)
    : PreferenceFlipTool(descriptor, platform, *PreferenceFlipTable::find(descriptor.identity.id)) {
    if (const auto stored = platform.preferences.integer(kSpacingKey);
        stored && *stored >= kMinimumSpacing && *stored <= kMaximumSpacing) {
        spacing_ = *stored;
    }
}

void FitMoreMenuBarIconsTool::setSpacing(std::int64_t points) {
    spacing_ = std::clamp(points, kMinimumSpacing, kMaximumSpacing);
    platform_.preferences.set(kSpacingKey, spacing_);
    settingsChanged();
}

std::vector<PreferenceFlip> FitMoreMenuBarIconsTool::wantedFlips() const {
    const auto domain = SystemPreferenceDomain::globalThisMac();
    return {{"NSStatusItemSpacing", domain, spacing_},
            {"NSStatusItemSelectionPadding", domain, spacing_}};
}

void FitMoreMenuBarIconsTool::addSettings(SettingsPage& page) {
    SettingsSection spacing{"", {}, "Smaller gaps fit more icons; 0 puts them edge to edge."};
    spacing.rows.push_back(
        {SettingsRow::Stepper{
             "Space between icons", kMinimumSpacing, kMaximumSpacing, 1,
             [this] { return spacing_; }, [this](std::int64_t points) { setSpacing(points); },
             [](std::int64_t points) {
                 return std::to_string(points) + (points == 1 ? " point" : " points");
             }},
         {}});
    page.add(std::move(spacing));
}

}  // namespace quorvane
