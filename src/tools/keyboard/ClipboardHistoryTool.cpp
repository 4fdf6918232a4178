#include "tools/keyboard/ClipboardHistoryTool.hpp"

#include <algorithm>
#include <set>

#include "input/FocusedText.hpp"
#include "input/InputServices.hpp"
#include "input/KeyPressSynthesizer.hpp"
#include "platform/Accessibility.hpp"
#include "platform/EventField.hpp"
#include "platform/EventMonitors.hpp"
#include "platform/EventSystem.hpp"
#include "platform/Hashing.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/PasteboardType.hpp"
#include "platform/Preferences.hpp"
#include "platform/Scheduler.hpp"
#include "platform/Screens.hpp"
#include "platform/Thumbnails.hpp"
#include "platform/Workspace.hpp"
#include "tools/keyboard/ClipboardPanelPlacement.hpp"
#include "tools/keyboard/ClipboardRules.hpp"

namespace quorvane {

namespace {

constexpr Seconds kPollInterval{0.4};
constexpr Seconds kSaveDelay{1.0};
constexpr Seconds kPasteDelay{0.12};
constexpr Seconds kMenuDelay{0.25};
constexpr std::uint16_t kVKeyCode = 9;
constexpr double kCaretDrop = 6;

std::optional<KeyCombo> defaultShortcut() {
    return KeyCombo{kVKeyCode, modifierFlag::command | modifierFlag::shift, "V"};
}

}  // namespace

ClipboardHistoryTool::ClipboardHistoryTool(const ToolDescriptor& descriptor,
                                           const Platform& platform)
    : ClipboardHistoryTool(descriptor, platform, ClipboardStore::defaultFolder()) {}

ClipboardHistoryTool::ClipboardHistoryTool(const ToolDescriptor& descriptor,
                                           const Platform& platform, std::filesystem::path folder)
    : descriptor_(descriptor),
      platform_(platform),
      store_(std::move(folder)),
      shortcut_(
          platform, kShortcutKey, defaultShortcut(), [this] { openPanel(); },
          [this] { publish(); }) {
    load();
    if (const auto front = platform_.workspace.frontmostApplication();
        front && front->pid != platform_.workspace.currentProcessID()) {
        lastOtherApp_ = front->pid;
    }
    activationToken_ = platform_.workspace.observe(
        WorkspaceNotification::didActivateApplication, [this](const RunningApplication* app) {
            if (app != nullptr && app->pid != platform_.workspace.currentProcessID()) {
                lastOtherApp_ = app->pid;
            }
        });
}

ClipboardHistoryTool::~ClipboardHistoryTool() = default;

void ClipboardHistoryTool::load() {
    const auto& prefs = platform_.preferences;
    const auto max = prefs.integer(kMaxItemsKey);
    history_.setMaxItems(max && *max > 0 ? static_cast<std::size_t>(*max) : 50);
    const auto trigger = prefs.string(kMouseTriggerKey);
    mouseTrigger_ =
        mouseTriggerFrom(trigger ? std::optional<std::string_view>(*trigger) : std::nullopt);
    remembers_ = prefs.boolean(kRememberKey).value_or(true);
    ignoredApps_ = prefs.stringArray(kIgnoredAppsKey).value_or(std::vector<std::string>{});
    if (!remembers_) {
        prune();
        return;
    }
    auto loaded = store_.load();
    deleteImages(history_.replace(std::move(loaded.items)));
    // Image files left by a quit between writing an image and saving the history.
    std::set<Uuid> keep;
    for (const ClipItem& item : history_.items()) {
        if (item.kind == ClipItem::Kind::image) {
            keep.insert(item.id);
        }
    }
    if (!loaded.setAside) {
        store_.removeOrphanImages(keep);
    }
    // Now rather than at the first search, which would make the first opening of the list
    // wait for every long text to be read.
    history_.items().prepareSearch();
    model_.setItems(history_.items());
}

void ClipboardHistoryTool::start() {
    isActive_ = true;
    shortcut_.activate();
    installTap();
    lastChangeCount_ = -1;
    check();
    pollTask_ = platform_.scheduler.every(kPollInterval, [this] { check(); });
    publish();
}

void ClipboardHistoryTool::stop() {
    isActive_ = false;
    pollTask_.reset();
    openTask_.reset();
    shortcut_.deactivate();
    shortcut_.recorder().stop();
    mouseTap_.reset();
    swallowRightMouseUp_ = false;
    closePanel();
    publish();
}

void ClipboardHistoryTool::installTap() {
    mouseTap_.reset();
    if (!isActive_ || mouseTrigger_ == MouseTrigger::off) {
        return;
    }
    mouseTap_ =
        EventTap::create(platform_.events, {EventType::rightMouseDown, EventType::rightMouseUp},
                         [this](EventType type, Event& event) { return handleMouse(type, event); });
}

bool ClipboardHistoryTool::handleMouse(EventType type, Event& event) {
    if (type == EventType::rightMouseUp) {
        if (swallowRightMouseUp_) {
            swallowRightMouseUp_ = false;
            return false;
        }
        return true;
    }
    if (type != EventType::rightMouseDown || !triggers(mouseTrigger_, event.flags())) {
        return true;
    }
    swallowRightMouseUp_ = true;
    const Point location = event.location();
    openTask_ = platform_.scheduler.post([this, location] { openAtClick(location); });
    return false;
}

void ClipboardHistoryTool::openAtClick(Point topLeft) {
    Accessibility& ax = platform_.accessibility;
    Element element;
    const bool editable =
        ax.elementAtPosition(ax.systemWide(), static_cast<float>(topLeft.x),
                             static_cast<float>(topLeft.y), element) == Accessibility::kSuccess &&
        element && isEditableElement(ax, element);
    const Point anchor = toBottomLeft(topLeft);
    if (!editable) {
        openPanel(anchor, false);
        return;
    }
    // A left click puts the caret where the user right-clicked, so the paste lands there.
    for (const EventType type : {EventType::leftMouseDown, EventType::leftMouseUp}) {
        auto click = platform_.events.makeMouseEvent(EventSystem::SourceState::hidSystem, type,
                                                     topLeft, EventSystem::MouseButton::left);
        if (click) {
            click->setFlags(0);
            platform_.events.post(EventSystem::Location::hid, *click);
        }
    }
    openTask_ = platform_.scheduler.after(kPasteDelay, [this, anchor] { openPanel(anchor, true); });
}

Point ClipboardHistoryTool::toBottomLeft(Point topLeft) {
    // Event and accessibility coordinates start at the top left of the main display; windows
    // are placed from its bottom left.
    const auto main = platform_.screens.mainScreen();
    const auto screens = platform_.screens.screens();
    const double height = !screens.empty() ? screens.front().frame.maxY()
                          : main           ? main->frame.maxY()
                                           : 0;
    return {topLeft.x, height - topLeft.y};
}

std::optional<Point> ClipboardHistoryTool::caretAnchor() {
    Accessibility& ax = platform_.accessibility;
    AccessibilityValue focused;
    if (ax.copyAttribute(ax.systemWide(), "AXFocusedUIElement", focused) !=
            Accessibility::kSuccess ||
        !std::holds_alternative<Element>(focused)) {
        return std::nullopt;
    }
    const Element element = std::get<Element>(focused);
    AccessibilityValue range;
    if (ax.copyAttribute(element, "AXSelectedTextRange", range) != Accessibility::kSuccess ||
        !std::holds_alternative<TextRange>(range)) {
        return std::nullopt;
    }
    AccessibilityValue bounds;
    if (ax.copyParameterizedAttribute(element, "AXBoundsForRange", range, bounds) !=
            Accessibility::kSuccess ||
        !std::holds_alternative<Rect>(bounds)) {
        return std::nullopt;
    }
    const Rect caret = std::get<Rect>(bounds).standardized();
    // The lower-left corner in top-left coordinates is (minX, maxY); a little lower still.
    return toBottomLeft({caret.minX(), caret.maxY() + kCaretDrop});
}

void ClipboardHistoryTool::openPanel(std::optional<Point> anchor, bool pasteHere) {
    openTask_.reset();
    if (!anchor) {
        anchor = caretAnchor();
    }
    if (!anchor) {
        anchor = platform_.screens.mouseLocation();
    }
    panelFrame_ = ClipboardPanelPlacement::frame(*anchor, platform_.screens.screens());
    pasteHere_ = pasteHere;
    model_.setItems(history_.items());
    model_.setQuery({});
    panelOpen_ = true;
    if (!panel_) {
        panel_ = platform_.screens.makeListPanel(panelHandlers());
    }
    if (panel_) {
        refreshPanel();
        panel_->show(panelFrame_);
    }
    const std::uint64_t keyDown = std::uint64_t{1} << static_cast<int>(EventType::keyDown);
    keyMonitor_ = platform_.eventMonitors.addLocal(keyDown, [this](const Event& event) {
        const auto code =
            static_cast<std::uint16_t>(event.integerField(eventField::keyboardKeycode));
        return !panelKey(code, event.flags());
    });
    const std::uint64_t clicks = (std::uint64_t{1} << static_cast<int>(EventType::leftMouseDown)) |
                                 (std::uint64_t{1} << static_cast<int>(EventType::rightMouseDown));
    clickMonitor_ = platform_.eventMonitors.addGlobal(clicks, [this](const Event&) {
        // Deferred: the monitor that calls this is being removed by it.
        openTask_ = platform_.scheduler.post([this] { closePanel(); });
    });
    publish();
}

void ClipboardHistoryTool::showFromMenu() {
    if (lastOtherApp_ != 0) {
        const auto app = platform_.workspace.runningApplication(lastOtherApp_);
        if (app && !app->terminated) {
            platform_.workspace.activate(lastOtherApp_);
        }
    }
    openTask_ = platform_.scheduler.after(kMenuDelay, [this] { openPanel(); });
}

void ClipboardHistoryTool::closePanel() {
    keyMonitor_.cancel();
    clickMonitor_.cancel();
    closeTask_.reset();
    if (panelOpen_) {
        panelOpen_ = false;
        model_.setQuery({});
        if (panel_) {
            panel_->close();
        }
        publish();
    }
}

ListPanel::Handlers ClipboardHistoryTool::panelHandlers() {
    ListPanel::Handlers handlers;
    handlers.row = [this](std::size_t index) { return panelRow(index); };
    handlers.queryChanged = [this](const std::string& query) {
        model_.setQuery(query);
        refreshPanel();
    };
    handlers.rowClicked = [this](std::size_t index) {
        if (const ClipItem* item = model_.itemAt(index)) {
            paste(item->id, false);
        }
    };
    handlers.rowHovered = [this](std::size_t index, Point location) {
        const std::size_t before = model_.selection();
        model_.hover(index, location);
        if (model_.selection() != before) {
            refreshPanel();
        }
    };
    handlers.resignedKey = [this] {
        // Deferred: the panel is in the middle of telling.
        closeTask_ = platform_.scheduler.post([this] { closePanel(); });
    };
    return handlers;
}

ListPanelRow ClipboardHistoryTool::panelRow(std::size_t index) {
    const ClipboardListModel::Row row = model_.row(index);
    ListPanelRow drawn;
    drawn.number = row.number;
    drawn.title = row.title;
    drawn.symbol = row.symbol;
    drawn.app = row.app;
    drawn.isSelected = row.isSelected;
    if (row.kind == ClipItem::Kind::image) {
        drawn.thumbnail = thumbnail(row.id);
    }
    return drawn;
}

void ClipboardHistoryTool::refreshPanel() {
    if (!panelOpen_ || !panel_) {
        return;
    }
    ListPanelContent content;
    content.query = model_.query();
    content.placeholder = ClipboardListModel::kPlaceholder;
    content.rowCount = model_.shown().size();
    content.selection = model_.selection();
    content.emptyText = model_.emptyText();
    content.footer = ClipboardListModel::kFooter;
    content.error = lastError_;
    panel_->setContent(content);
}

bool ClipboardHistoryTool::panelKey(std::uint16_t keyCode, std::uint64_t flags) {
    if (!panelOpen_) {
        return false;
    }
    using Kind = ClipboardListModel::KeyAction::Kind;
    const auto action = model_.key(keyCode, flags);
    switch (action.kind) {
        case Kind::paste:
            if (const ClipItem* item = model_.itemAt(action.index)) {
                paste(item->id, action.plainText);
            }
            return true;
        case Kind::remove:
            if (const ClipItem* item = model_.itemAt(action.index)) {
                remove(item->id);
            }
            return true;
        case Kind::close:
            closePanel();
            return true;
        case Kind::moveUp:
            model_.moveSelection(-1);
            refreshPanel();
            publish();
            return true;
        case Kind::moveDown:
            model_.moveSelection(1);
            refreshPanel();
            publish();
            return true;
        case Kind::search:
        case Kind::none:
            return false;
    }
    return false;
}

void ClipboardHistoryTool::check() {
    Pasteboard& pasteboard = platform_.pasteboard;
    const std::int64_t count = pasteboard.changeCount();
    if (count == lastChangeCount_) {
        return;
    }
    lastChangeCount_ = count;
    const std::vector<std::string> types = pasteboard.types();
    const auto itemTypes = pasteboard.itemTypes();
    // Markers are looked at before any bytes are read.
    if (ClipboardRules::isPrivate(itemTypes) || ClipboardRules::isPrivate({types})) {
        return;
    }
    const auto string = pasteboard.string(pasteboard_type::string);
    if (ClipboardRules::isCleared(string, types)) {
        if (history_.removeRecentText(platform_.scheduler.date())) {
            changed();
        }
        return;
    }
    std::optional<std::string> app;
    if (const auto front = platform_.workspace.frontmostApplication();
        front && !front->bundleID.empty()) {
        app = front->bundleID;
    }
    if (ClipboardRules::isSkippedApp(app, ignoredApps_)) {
        return;
    }
    ClipItem item;
    item.id = Uuid::random();
    item.date = platform_.scheduler.date();
    item.app = app;
    const auto has = [&](std::string_view type) {
        return std::find(types.begin(), types.end(), type) != types.end();
    };
    if (auto paths = pasteboard.filePaths(); !paths.empty()) {
        item.kind = ClipItem::Kind::files;
        item.filePaths = std::move(paths);
    } else if (string && ClipboardRules::hasVisibleText(*string)) {
        item.kind = ClipItem::Kind::text;
        item.text = *string;
        for (const std::string_view type : ClipboardRules::kRichTypes) {
            if (!has(type)) {
                continue;
            }
            if (auto bytes = pasteboard.data(std::string(type))) {
                if (!item.rich) {
                    item.rich.emplace();
                }
                item.rich->emplace(type, std::move(*bytes));
            }
        }
    } else {
        std::optional<std::vector<std::uint8_t>> bytes;
        for (const char* type : {pasteboard_type::png, pasteboard_type::tiff}) {
            if (has(type) && (bytes = pasteboard.data(type))) {
                item.imageType = type;
                break;
            }
        }
        if (!bytes) {
            return;
        }
        item.kind = ClipItem::Kind::image;
        item.imageHash = Sha256::hex(platform_.hashing.sha256(*bytes));
        if (!store_.writeImage(item.id, *bytes)) {
            setLastError("Couldn't save the copied image in " + store_.folder().string());
            return;
        }
    }
    deleteImages(history_.insert(std::move(item)));
    changed();
}

void ClipboardHistoryTool::paste(const Uuid& id, bool plainText) {
    const ClipItem* item = history_.find(id);
    if (item == nullptr) {
        return;
    }
    closePanel();
    Pasteboard& pasteboard = platform_.pasteboard;
    bool written = true;
    switch (item->kind) {
        case ClipItem::Kind::text:
            pasteboard.clearContents();
            written = pasteboard.setString(item->text.value_or(""), pasteboard_type::string);
            if (!plainText && item->rich) {
                for (const auto& [type, bytes] : *item->rich) {
                    written = pasteboard.setData(bytes, type) && written;
                }
            }
            break;
        case ClipItem::Kind::image: {
            const auto bytes = store_.readImage(item->id);
            if (!bytes) {
                setLastError("The copied image is no longer in " + store_.folder().string());
                return;
            }
            pasteboard.clearContents();
            written = pasteboard.setData(*bytes, item->imageType.value_or(pasteboard_type::png));
            break;
        }
        case ClipItem::Kind::files:
            pasteboard.clearContents();
            written =
                pasteboard.writeFilePaths(item->filePaths.value_or(std::vector<std::string>{}));
            break;
    }
    if (!written) {
        setLastError("Couldn't put the copy on the clipboard");
        return;
    }
    if (!lastError_.empty()) {
        setLastError({});
    }
    pasteTask_ = platform_.scheduler.after(kPasteDelay, [this] {
        KeyPressSynthesizer::press(platform_.events, kVKeyCode, modifierFlag::command, kOwnKeyTag);
    });
}

void ClipboardHistoryTool::remove(const Uuid& id) {
    deleteImages(history_.remove(id));
    thumbnails_.erase(id);
    changed();
}

std::optional<Thumbnail> ClipboardHistoryTool::thumbnail(const Uuid& id) {
    if (const auto found = thumbnails_.find(id); found != thumbnails_.end()) {
        return found->second;
    }
    const ClipItem* item = history_.find(id);
    if (item == nullptr || item->kind != ClipItem::Kind::image) {
        return std::nullopt;
    }
    auto made = platform_.thumbnails.make(store_.imagePath(id).string(), kThumbnailSize);
    if (made) {
        thumbnails_.emplace(id, *made);
    }
    return made;
}

void ClipboardHistoryTool::setMaxItems(std::size_t maxItems) {
    maxItems = std::max<std::size_t>(maxItems, 1);
    platform_.preferences.set(kMaxItemsKey, static_cast<std::int64_t>(maxItems));
    deleteImages(history_.setMaxItems(maxItems));
    changed();
}

void ClipboardHistoryTool::setMouseTrigger(MouseTrigger trigger) {
    mouseTrigger_ = trigger;
    platform_.preferences.set(kMouseTriggerKey, rawValue(trigger));
    installTap();
    publish();
}

void ClipboardHistoryTool::setRemembersAfterRestart(bool remembers) {
    remembers_ = remembers;
    platform_.preferences.set(kRememberKey, remembers);
    if (remembers) {
        scheduleSave();
    } else {
        saveTask_.reset();
        prune();
    }
    publish();
}

void ClipboardHistoryTool::ignoreApp(const std::string& bundleID) {
    if (bundleID.empty() ||
        std::find(ignoredApps_.begin(), ignoredApps_.end(), bundleID) != ignoredApps_.end()) {
        return;
    }
    ignoredApps_.push_back(bundleID);
    platform_.preferences.set(kIgnoredAppsKey, PreferenceValue::stringArray(ignoredApps_));
    publish();
}

void ClipboardHistoryTool::rememberApp(const std::string& bundleID) {
    if (std::erase(ignoredApps_, bundleID) == 0) {
        return;
    }
    platform_.preferences.set(kIgnoredAppsKey, PreferenceValue::stringArray(ignoredApps_));
    publish();
}

void ClipboardHistoryTool::prune() {
    std::set<Uuid> keep;
    for (const ClipItem& item : history_.items()) {
        if (item.kind == ClipItem::Kind::image) {
            keep.insert(item.id);
        }
    }
    store_.prune(keep);
}

void ClipboardHistoryTool::deleteImages(const std::vector<Uuid>& ids) {
    for (const Uuid& id : ids) {
        store_.deleteImage(id);
        thumbnails_.erase(id);
    }
}

void ClipboardHistoryTool::scheduleSave() {
    saveTask_ = platform_.scheduler.after(kSaveDelay, [this] {
        if (remembers_ && !store_.save(history_.items())) {
            setLastError("Couldn't save the clipboard history in " + store_.folder().string());
        }
    });
}

void ClipboardHistoryTool::changed() {
    model_.setItems(history_.items());
    refreshPanel();
    scheduleSave();
    publish();
}

void ClipboardHistoryTool::setLastError(std::string error) {
    lastError_ = std::move(error);
    refreshPanel();
    publish();
}

}  // namespace quorvane
