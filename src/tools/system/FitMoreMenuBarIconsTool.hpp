#pragma once

#include <cstdint>

#include "tools/system/PreferenceFlipTool.hpp"

namespace quorvane {

// Narrower gaps between menu-bar icons, through the two this-Mac global keys the menu bar reads.
// The highlight padding follows the spacing, so a clicked icon's highlight stays centred.
class FitMoreMenuBarIconsTool : public PreferenceFlipTool {
public:
    static constexpr const char* kSpacingKey = "menuBarSpacing.spacing";
    static constexpr std::int64_t kMinimumSpacing = 0;
    static constexpr std::int64_t kMaximumSpacing = 16;
    static constexpr std::int64_t kDefaultSpacing = 6;

    FitMoreMenuBarIconsTool(const ToolDescriptor& descriptor, const Platform& platform);

    std::int64_t spacing() const { return spacing_; }
    // Clamped to the stepper's range.
    void setSpacing(std::int64_t points);

protected:
    std::vector<PreferenceFlip> wantedFlips() const override;
    void addSettings(SettingsPage& page) override;

private:
    std::int64_t spacing_ = kDefaultSpacing;
};

}  // namespace quorvane
