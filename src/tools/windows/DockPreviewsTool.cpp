#include "tools/windows/DockPreviewsTool.hpp"

#include <algorithm>
#include <cctype>
#include <chrono>

#include "app/BringToFront.hpp"
#include "input/InputServices.hpp"
#include "platform/Preferences.hpp"
#include "platform/ScreenCapture.hpp"
#include "platform/Screens.hpp"
#include "platform/WindowList.hpp"
#include "platform/Workspace.hpp"
#include "tools/windows/DisplayLayout.hpp"
#include "tools/windows/DockPreviewPlan.hpp"

namespace quorvane {

namespace {

Seconds milliseconds(std::int64_t value) {
    return Seconds{static_cast<double>(value) / 1000};
}

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

}  // namespace

DockPreviewsTool::DockPreviewsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      dock_(platform.accessibility, platform.workspace),
      windows_(platform.accessibility),
      delay_(std::clamp(platform.preferences.integer(kDelayKey).value_or(kDefaultDelay),
                        std::int64_t{0}, kMaxDelay)),
      engine_(milliseconds(delay_)),
      pictures_(platform.screenCapture) {}

void DockPreviewsTool::start() {
    stop();
    ListPanel::Handlers handlers;
    handlers.row = [this](std::size_t index) {
        ListPanelRow drawn;
        const auto shown = visibleRows();
        if (index < shown.size()) {
            const Row& row = rows_[shown[index]];
            drawn.title = row.title.empty() ? "Untitled window" : row.title;
            drawn.symbol = "macwindow";
            drawn.thumbnail = pictures_.at(shown[index]);
            drawn.app = row.bundleID;
        }
        return drawn;
    };
    handlers.queryChanged = [this](const std::string& query) {
        query_ = query;
        refreshPanel();
    };
    handlers.rowClicked = [this](std::size_t index) { picked(index); };
    handlers.resignedKey = [this] { close(); };
    panel_ = platform_.screens.makeListPanel(std::move(handlers));
    attach();
    dockCheck_ = platform_.scheduler.every(kDockCheck, [this] {
        if (dock_.dockPID() != dockPID_ || !observer_) {
            attach();
        }
    });
    publish();
}

void DockPreviewsTool::stop() {
    dockCheck_ = {};
    step_ = {};
    close();
    observer_.reset();
    dockPID_.reset();
    panel_.reset();
    publish();
}

void DockPreviewsTool::attach() {
    observer_.reset();
    dockPID_ = dock_.dockPID();
    const Element list = dock_.list();
    if (!dockPID_ || !list) {
        setLastError("The Dock isn't running, or it isn't answering (is Accessibility allowed?)");
        return;
    }
    std::int32_t status = Accessibility::kSuccess;
    observer_ = platform_.accessibility.createObserver(
        *dockPID_, [this](const Element&, const std::string&) { selectionChanged(); }, status);
    if (observer_) {
        status = observer_->addNotification(list, kSelectionChanged);
    }
    if (!observer_ || status != Accessibility::kSuccess) {
        observer_.reset();
        setLastError(AccessibleWindows::failure("Couldn't watch the Dock", status));
        return;
    }
    observer_->schedule();
    setLastError({});
}

void DockPreviewsTool::selectionChanged() {
    std::string url;
    AccessibilityValue selected;
    const Element list = dock_.list();
    if (list && platform_.accessibility.copyAttribute(list, "AXSelectedChildren", selected) ==
                    Accessibility::kSuccess) {
        if (const auto* icons = std::get_if<std::vector<Element>>(&selected);
            icons != nullptr && !icons->empty()) {
            if (const auto item = dock_.item(icons->front()); item && item->isApplication) {
                url = item->url;
                hoveredIcon_ = item->frame;
            }
        }
    }
    if (const auto step = engine_.hovered(url)) {
        schedule(*step);
    } else {
        step_ = {};
    }
}

void DockPreviewsTool::schedule(const DockPreviewEngine::Step& step) {
    step_ = platform_.scheduler.after(step.delay, [this, step] { due(step); });
}

void DockPreviewsTool::due(const DockPreviewEngine::Step& step) {
    if (!engine_.due(step, pointerInPanel())) {
        if (const auto next = engine_.next()) {
            schedule(*next);
        }
        return;
    }
    if (step.item.empty()) {
        close();
        return;
    }
    open(step.item);
}

void DockPreviewsTool::open(const std::string& itemURL) {
    pictures_.clear();
    rows_.clear();
    query_.clear();
    OpenWindows open(platform_.workspace, windows_);
    const auto windows = open.list();
    const auto order = platform_.windowList.onScreenWindows();
    const auto bundleURLOf = [this](int pid) {
        const auto app = platform_.workspace.runningApplication(pid);
        return app ? app->bundleURL : std::string();
    };
    std::vector<OpenWindows::Window> shown;
    for (const std::size_t index :
         DockPreviewPlan::windowsToShow(itemURL, windows, bundleURLOf, order)) {
        const auto& window = windows[index];
        rows_.push_back({window.pid, window.element, window.record.title, window.record.bundleID});
        shown.push_back(window);
    }
    if (rows_.empty() || !panel_ || !hoveredIcon_) {
        if (panel_) {
            panel_->close();  // an app with no windows has nothing to preview
        }
        return;
    }
    const auto layout = DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    const auto display =
        layout.displayContaining({hoveredIcon_->midX(), hoveredIcon_->midY()}).value_or(0);
    if (layout.count() == 0) {
        return;
    }
    panelFrame_ = DockPreviewPlan::panelFrame(
        *hoveredIcon_, {ListPanelContent::kWidth, ListPanelContent::kHeight},
        layout.visibleArea(display),
        DockPreviewPlan::dockEdge(*hoveredIcon_, layout.frame(display)));
    refreshPanel();
    // Flipping is its own inverse, so the same conversion takes the frame back to the screen.
    panel_->show(layout.toAccessibility(panelFrame_));
    pictures_.take(shown, order, kPicturePixels, [this](std::size_t) { refreshPanel(); });
}

std::vector<std::size_t> DockPreviewsTool::visibleRows() const {
    std::vector<std::size_t> shown;
    const std::string wanted = lowered(query_);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (wanted.empty() || lowered(rows_[i].title).find(wanted) != std::string::npos) {
            shown.push_back(i);
        }
    }
    return shown;
}

void DockPreviewsTool::refreshPanel() {
    if (!panel_) {
        return;
    }
    ListPanelContent content;
    content.query = query_;
    content.placeholder = "Filter windows";
    content.rowCount = visibleRows().size();
    if (content.rowCount == 0) {
        content.emptyText = "No window matches";
    }
    content.footer = "Click a window to bring it forward";
    content.error = lastError_;
    panel_->setContent(content);
}

void DockPreviewsTool::picked(std::size_t index) {
    const auto shown = visibleRows();
    if (index >= shown.size()) {
        return;
    }
    const Row row = rows_[shown[index]];
    close();
    // The pick is the user's own doing, so focus guards let it through.
    platform_.input.userActionMark.date = platform_.scheduler.date();
    const std::int32_t status = windows_.raise(row.element);
    bringToFront(platform_.accessibility, platform_.workspace, row.pid);
    setLastError(status == Accessibility::kSuccess
                     ? std::string()
                     : AccessibleWindows::failure("Couldn't bring the window forward", status));
}

void DockPreviewsTool::close() {
    step_ = {};
    pictures_.clear();
    rows_.clear();
    query_.clear();
    engine_.closed();
    if (panel_ && panel_->isVisible()) {
        panel_->close();
    }
}

bool DockPreviewsTool::pointerInPanel() {
    if (!isShowing()) {
        return false;
    }
    const auto layout = DisplayLayout::read(platform_.screens, platform_.displayConfiguration);
    const Point pointer =
        layout.toAccessibility(Rect(platform_.screens.mouseLocation(), Size{0, 0})).origin;
    return panelFrame_.contains(pointer);
}

void DockPreviewsTool::setDelay(std::int64_t milliseconds) {
    delay_ = std::clamp(milliseconds, std::int64_t{0}, kMaxDelay);
    engine_.setOpenDelay(quorvane::milliseconds(delay_));
    platform_.preferences.set(kDelayKey, PreferenceValue(delay_));
    publish();
}

void DockPreviewsTool::setLastError(std::string error) {
    if (error != lastError_) {
        lastError_ = std::move(error);
        publish();
    }
}

}  // namespace quorvane
