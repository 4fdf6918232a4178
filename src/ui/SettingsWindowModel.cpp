#include "ui/SettingsWindowModel.hpp"

#include <algorithm>

#include "app/LaunchAtLogin.hpp"
#include "app/PermissionCardActions.hpp"
#include "app/PermissionCenter.hpp"
#include "app/ToolRegistry.hpp"
#include "ui/ToolStatus.hpp"

namespace quorvane {

SettingsWindowModel::SettingsWindowModel(ToolRegistry& registry, PermissionCardActions& cardActions,
                                         LaunchAtLogin& launchAtLogin)
    : registry_(registry), cardActions_(cardActions), launchAtLogin_(launchAtLogin) {
    sources_.push_back(registry.subscribe([this] { publish(); }));
    sources_.push_back(registry.permissions().subscribe([this] { publish(); }));
    sources_.push_back(cardActions.subscribe([this] { publish(); }));
    // Its error is a plain warning row, so General is built again to show it.
    sources_.push_back(launchAtLogin.subscribe([this] {
        if (selectedID_.empty()) {
            rebuildPage();
        }
    }));
}

void SettingsWindowModel::setQuery(std::string_view query) {
    query_ = std::string(query);
    words_ = ToolRegistry::searchWords(query);
    publish();
}

ColorRole SettingsWindowModel::SidebarRow::titleColor() const {
    if (isHeading()) {
        return ColorRole::secondaryLabel;
    }
    return isAvailable ? ColorRole::label : ColorRole::tertiaryLabel;
}

ViewNode SettingsWindowModel::SidebarRow::view() const {
    if (isHeading()) {
        return ViewNode::heading(title, 11).colored(titleColor());
    }
    ViewNode name = ViewNode::label(title).colored(titleColor());
    name.truncates = true;
    ViewNode line = ViewNode::row(6, {ViewNode::symbolImage(systemImage, 13), std::move(name)});
    if (isOn) {
        line.children.push_back(ViewNode::symbolImage(kOnIndicator, 7).colored(kOnIndicatorColor));
    }
    return line;
}

std::vector<SettingsWindowModel::SidebarRow> SettingsWindowModel::sidebar() const {
    std::vector<SidebarRow> rows;
    if (words_.empty()) {
        rows.push_back({.kind = SidebarRow::Kind::general,
                        .title = kGeneralTitle,
                        .systemImage = kGeneralImage});
    }
    for (const auto category : kAllToolCategories) {
        bool headed = false;
        for (const auto& tool : registry_.tools()) {
            if (tool->category() != category || !ToolRegistry::matches(*tool, words_)) {
                continue;
            }
            if (!headed) {
                rows.push_back(
                    {.kind = SidebarRow::Kind::category, .title = std::string(title(category))});
                headed = true;
            }
            rows.push_back({.kind = SidebarRow::Kind::tool,
                            .title = tool->name(),
                            .systemImage = tool->systemImage(),
                            .toolID = tool->id(),
                            .isOn = registry_.enabledIDs().contains(tool->id()),
                            .isAvailable = tool->isAvailable()});
        }
    }
    return rows;
}

std::optional<std::size_t> SettingsWindowModel::selectedRow() const {
    const auto rows = sidebar();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool selected = selectedID_.empty() ? rows[i].kind == SidebarRow::Kind::general
                                                  : rows[i].kind == SidebarRow::Kind::tool &&
                                                        rows[i].toolID == selectedID_;
        if (selected) {
            return i;
        }
    }
    return std::nullopt;
}

void SettingsWindowModel::selectRow(std::size_t row) {
    const auto rows = sidebar();
    if (row >= rows.size()) {
        return;
    }
    switch (rows[row].kind) {
        case SidebarRow::Kind::general:
            showGeneral();
            return;
        case SidebarRow::Kind::category:
            return;
        case SidebarRow::Kind::tool:
            select(rows[row].toolID);
            return;
    }
}

void SettingsWindowModel::showTool(std::string_view id) {
    const Tool* tool = registry_.tool(id);
    if (tool == nullptr) {
        return;
    }
    if (!ToolRegistry::matches(*tool, words_)) {
        query_.clear();
        words_.clear();
    }
    select(tool->id());
    publish();
}

void SettingsWindowModel::showGeneral() {
    select("");
}

void SettingsWindowModel::select(std::string id) {
    if (id != selectedID_) {
        selectedID_ = std::move(id);
        rebuildPage();
    }
}

void SettingsWindowModel::rebuildPage() {
    ++pageGeneration_;
    publish();
}

Tool* SettingsWindowModel::selectedTool() const {
    return selectedID_.empty() ? nullptr : registry_.tool(selectedID_);
}

SettingsWindowModel::Header SettingsWindowModel::header() const {
    Tool* tool = selectedTool();
    if (tool == nullptr) {
        return {.title = kGeneralTitle, .summary = kGeneralSummary, .systemImage = kGeneralImage};
    }
    const auto& controls = registry_.controlIDs();
    return {.title = tool->name(),
            .summary = tool->summary(),
            .systemImage = tool->systemImage(),
            .status = ToolStatus::describe(registry_, *tool),
            .hasSwitch = true,
            .isOn = registry_.enabledIDs().contains(tool->id()),
            .isSwitchable = tool->isAvailable(),
            .hasMenuToggle = tool->isAvailable() && tool->control().has_value(),
            .isInMenu = std::find(controls.begin(), controls.end(), tool->id()) != controls.end()};
}

ViewNode SettingsWindowModel::headerView(double width) {
    const Header shown = header();
    ViewNode titles = ViewNode::column(4, {ViewNode::heading(shown.title, 20),
                                           ViewNode::wrappingLabel(shown.summary, width - 60)});
    if (!shown.status.empty()) {
        titles.children.push_back(ViewNode::secondaryLabel(shown.status, width));
    }
    ViewNode top = ViewNode::row(12, {ViewNode::symbolImage(shown.systemImage, 28), titles});
    top.alignsTop = true;
    if (shown.hasSwitch) {
        top.children.push_back(ViewNode::toggleSwitch(shown.isOn, shown.isSwitchable,
                                                      [this](bool on) { setSwitch(on); }));
    }
    ViewNode view = ViewNode::column(10, {std::move(top)});
    if (shown.hasMenuToggle) {
        view.children.push_back(ViewNode::checkbox(kShowInMenuLabel, shown.isInMenu,
                                                   [this](bool on) { setInMenu(on); }));
    }
    return view;
}

SettingsPage SettingsWindowModel::page() const {
    Tool* tool = selectedTool();
    if (tool == nullptr) {
        SettingsPage page;
        page.add(launchAtLogin_.section());
        return page;
    }
    return tool->settingsPage();
}

const Observable* SettingsWindowModel::pageSource() const {
    return selectedTool();
}

std::vector<PermissionCard> SettingsWindowModel::cards() const {
    const Tool* selected = selectedTool();
    // A tool that cannot run here asks for nothing; General lists what any usable tool needs.
    const auto needed = registry_.permissionsNeeded(
        [selected](const Tool& tool) { return selected == nullptr || selected == &tool; });
    std::vector<PermissionCard> cards;
    for (const auto permission : needed) {
        cards.push_back(PermissionCard::make(permission, registry_.permissions()));
    }
    return cards;
}

const std::string& SettingsWindowModel::cardNotice() const {
    return cardActions_.lastError();
}

void SettingsWindowModel::performCardAction(Permission permission, PermissionCard::Action action) {
    cardActions_.perform(permission, action);
}

void SettingsWindowModel::setSwitch(bool on) {
    Tool* tool = selectedTool();
    if (tool != nullptr && tool->isAvailable()) {
        registry_.setEnabled(on, *tool, true);
    }
}

void SettingsWindowModel::setInMenu(bool on) {
    Tool* tool = selectedTool();
    if (tool != nullptr && tool->isAvailable() && (!on || tool->control())) {
        registry_.setInControls(on, *tool);
    }
}

}  // namespace quorvane
