#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "base/Subscription.hpp"
#include "platform/AccessibilityObserver.hpp"
#include "platform/ListPanel.hpp"
#include "platform/Platform.hpp"
#include "platform/Scheduler.hpp"
#include "tools/windows/AccessibleWindows.hpp"
#include "tools/windows/DockItems.hpp"
#include "tools/windows/DockPreviewEngine.hpp"
#include "tools/windows/OpenWindows.hpp"
#include "tools/windows/WindowPictures.hpp"

namespace quorvane {

// Hovering an app's Dock icon shows a list of its windows with a picture of each; clicking
// one brings that window forward. The Dock tells which icon is highlighted through its
// accessibility list, so nothing watches the mouse.
class DockPreviewsTool : public Tool {
public:
    static constexpr const char* kDelayKey = "dockPreviews.delay";
    static constexpr std::int64_t kDefaultDelay = 300;  // milliseconds
    static constexpr std::int64_t kMaxDelay = 2000;
    static constexpr const char* kSelectionChanged = "AXSelectedChildrenChanged";
    // The Dock is restarted by some settings changes; it is looked for again this often.
    static constexpr Seconds kDockCheck{2.0};
    // Pictures at twice the row's size, for Retina displays.
    static constexpr int kPicturePixels = 56;

    DockPreviewsTool(const ToolDescriptor& descriptor, const Platform& platform);

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;

    bool isWatching() const { return observer_ != nullptr; }
    bool isShowing() const { return panel_ && panel_->isVisible(); }
    std::int64_t delay() const { return delay_; }
    void setDelay(std::int64_t milliseconds);
    const std::string& lastError() const { return lastError_; }

private:
    struct Row {
        int pid = 0;
        Element element;
        std::string title;
        std::string bundleID;
    };

    void attach();
    void selectionChanged();
    void schedule(const DockPreviewEngine::Step& step);
    void due(const DockPreviewEngine::Step& step);
    void open(const std::string& itemURL);
    void close();
    void refreshPanel();
    std::vector<std::size_t> visibleRows() const;
    void picked(std::size_t index);
    bool pointerInPanel();
    void setLastError(std::string error);

    const ToolDescriptor& descriptor_;
    Platform platform_;
    DockItems dock_;
    AccessibleWindows windows_;
    std::int64_t delay_;
    DockPreviewEngine engine_;
    std::optional<int> dockPID_;
    std::unique_ptr<AccessibilityObserver> observer_;
    Timer dockCheck_;
    Timer step_;
    std::unique_ptr<ListPanel> panel_;
    Rect panelFrame_;  // accessibility coordinates
    std::optional<Rect> hoveredIcon_;
    std::vector<Row> rows_;
    std::string query_;
    WindowPictures pictures_;
    std::string lastError_;
};

}  // namespace quorvane
