#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/MenuBarPanel.hpp"
#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/Platform.hpp"
#include "platform/Timer.hpp"
#include "tools/system/SystemStats.hpp"
#include "ui/PanelContent.hpp"

namespace quorvane {

// The processor, memory and network in the menu bar, with the figures one click away. The
// counters are read every two seconds, and only while the item can be seen: hidden behind the
// notch, a full-screen app or other items it reads nothing at all.
class MenuBarStatsTool : public Tool {
public:
    static constexpr const char* kCpuKey = "menuBarStats.cpu";
    static constexpr const char* kMemoryKey = "menuBarStats.memory";
    static constexpr const char* kNetworkKey = "menuBarStats.network";
    static constexpr const char* kDiskKey = "menuBarStats.disk";
    static constexpr Seconds kInterval{2.0};
    static constexpr const char* kItemImage = "cpu";

    MenuBarStatsTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~MenuBarStatsTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    // What the item's popover shows.
    SettingsPage panelPage();

    bool isSampling() const { return static_cast<bool>(timer_); }
    const std::optional<StatsReading>& reading() const { return reading_; }
    const std::optional<std::string>& lastError() const { return lastError_; }
    MenuBarPanel* panel() { return panel_.get(); }
    bool shows(const char* key) const;
    void setShows(const char* key, bool on);

private:
    // The flag of one part of the title, by its preference key.
    template <typename Self>
    static auto& part(Self& self, const char* key);
    void onScreenChanged();
    void sample();
    std::optional<StatsSample> read();
    void showTitle();

    const ToolDescriptor& descriptor_;
    Platform platform_;
    bool cpu_;
    bool memory_;
    bool network_;
    bool disk_;
    std::optional<std::string> lastError_;
    std::optional<StatsSample> last_;
    std::optional<StatsReading> reading_;
    PanelContent panelContent_;
    std::unique_ptr<MenuBarPanel> panel_;
    Subscription onScreen_;
    Timer timer_;
};

}  // namespace quorvane
