#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/Permission.hpp"
#include "app/PermissionCard.hpp"
#include "app/PermissionCardSource.hpp"
#include "base/ColorRole.hpp"
#include "base/Observable.hpp"
#include "base/Subscription.hpp"
#include "ui/SettingsPage.hpp"
#include "ui/ViewNode.hpp"

namespace quorvane {

class LaunchAtLogin;
class PermissionCardActions;
class Tool;
class ToolRegistry;

// The settings window as data: a searchable sidebar of the tools grouped by category, and the
// page of the selected entry (Quorvane's own settings under "General", or a tool's page with
// its switch, its permission cards and its settings).
class SettingsWindowModel : public Observable, public PermissionCardSource {
public:
    static constexpr const char* kGeneralTitle = "General";
    static constexpr const char* kGeneralImage = "gearshape";
    static constexpr const char* kGeneralSummary =
        "Quorvane's own settings, and the permissions its tools ask for.";
    static constexpr const char* kSearchPlaceholder = "Search";
    static constexpr const char* kNoResults = "No tools match your search.";
    static constexpr const char* kShowInMenuLabel = "Show in Menu";
    // The dot after the name of a tool that is on.
    static constexpr const char* kOnIndicator = "circle.fill";
    static constexpr ColorRole kOnIndicatorColor = ColorRole::green;

    struct SidebarRow {
        enum class Kind { general, category, tool };
        Kind kind = Kind::tool;
        std::string title{};
        std::string systemImage{};
        std::string toolID{};  // tool rows only
        bool isOn = false;
        bool isAvailable = true;

        // Category headings cannot be selected.
        bool isHeading() const { return kind == Kind::category; }
        // Headings are quieter than entries; a tool that is not available is greyed out.
        ColorRole titleColor() const;
        // The row as the sidebar draws it: a heading, or an entry with its symbol and, for a
        // tool that is on, a dot.
        ViewNode view() const;
    };

    // The top of the page: what the entry is, and for a tool, its switches.
    struct Header {
        std::string title{};
        std::string summary{};
        std::string systemImage{};
        std::string status{};
        bool hasSwitch = false;
        bool isOn = false;
        // A tool that is not available is shown, but its switch does nothing.
        bool isSwitchable = false;
        bool hasMenuToggle = false;
        bool isInMenu = false;
    };

    SettingsWindowModel(ToolRegistry& registry, PermissionCardActions& cardActions,
                        LaunchAtLogin& launchAtLogin);

    const std::string& query() const { return query_; }
    void setQuery(std::string_view query);

    // "General" (while nothing is searched), then each category in order with the tools of
    // it that match every word of the query. Empty when nothing matches.
    std::vector<SidebarRow> sidebar() const;
    // Nothing while the selected entry is filtered out; its page stays shown meanwhile.
    std::optional<std::size_t> selectedRow() const;
    // Category rows are headings and cannot be selected.
    void selectRow(std::size_t row);
    // Opens a tool's page, clearing a search that would hide it.
    void showTool(std::string_view id);
    void showGeneral();
    // The selected tool; nothing while General is selected.
    Tool* selectedTool() const;

    // Changes whenever the page must be built again from page(); in between, the page only
    // refreshes its values when pageSource() publishes.
    std::uint64_t pageGeneration() const { return pageGeneration_; }
    Header header() const;
    // The header drawn `width` wide; its switch and checkbox act on this model.
    ViewNode headerView(double width);
    SettingsPage page() const;
    const Observable* pageSource() const;

    std::vector<PermissionCard> cards() const override;
    // Shown under the cards when a card's button failed.
    const std::string& cardNotice() const override;
    void performCardAction(Permission permission, PermissionCard::Action action) override;

    void setSwitch(bool on);
    void setInMenu(bool on);

private:
    void select(std::string id);
    void rebuildPage();

    ToolRegistry& registry_;
    PermissionCardActions& cardActions_;
    LaunchAtLogin& launchAtLogin_;
    std::string query_;
    std::vector<std::string> words_;
    std::string selectedID_;  // empty: General
    std::uint64_t pageGeneration_ = 1;
    std::vector<Subscription> sources_;
};

}  // namespace quorvane
