#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/MenuBarPanel.hpp"
#include "app/Tool.hpp"
#include "app/ToolDescriptor.hpp"
#include "platform/DateFormatting.hpp"
#include "platform/Platform.hpp"
#include "ui/PanelContent.hpp"

namespace quorvane {

// Today's date in the menu bar; a click shows the month, laid out from the user's first day of
// the week, and today's events from every calendar once the user allows access.
class MenuBarCalendarTool : public Tool {
public:
    static constexpr const char* kDateStyleKey = "menuBarCalendar.dateStyle";
    static constexpr const char* kShowEventsKey = "menuBarCalendar.showEvents";
    static constexpr const char* kItemImage = "calendar";
    static constexpr const char* kNoAccess =
        "Quorvane may not read your calendars. Allow it under Privacy & Security › Calendars "
        "in System Settings.";

    MenuBarCalendarTool(const ToolDescriptor& descriptor, const Platform& platform);
    ~MenuBarCalendarTool() override;

    const ToolIdentity& identity() const override { return descriptor_.identity; }
    void start() override;
    void stop() override;
    SettingsPage settingsPage() override;
    // What the item's popover shows.
    SettingsPage panelPage();

    MenuBarPanel* panel() { return panel_.get(); }
    const std::optional<std::string>& lastError() const { return lastError_; }
    // The month the panel shows.
    int shownYear() const { return year_; }
    int shownMonth() const { return month_; }
    // Months forward (positive) or back; 0 returns to this month.
    void showMonth(int offset);
    // The month as text, a row of weekday names and a row per week; today in brackets.
    std::string monthText();
    // Today's events, one line each; empty without access or with events turned off.
    std::vector<std::string> todaysEvents();
    void requestAccess();
    DateFormatting::Style dateStyle() const { return dateStyle_; }
    void setDateStyle(DateFormatting::Style style);
    bool showsEvents() const { return showEvents_; }
    void setShowsEvents(bool on);

private:
    void refreshTitle();
    void addAccessRows(SettingsSection& section);
    // What decides the panel's rows: the month, the access and the events switch.
    std::string panelLayout();

    const ToolDescriptor& descriptor_;
    Platform platform_;
    DateFormatting::Style dateStyle_;
    bool showEvents_;
    int year_ = 0;
    int month_ = 0;
    std::optional<std::string> lastError_;
    PanelContent panelContent_;
    std::unique_ptr<MenuBarPanel> panel_;
    Subscription dayChanges_;
    Subscription storeChanges_;
    std::shared_ptr<int> lifetime_ = std::make_shared<int>(0);
};

}  // namespace quorvane
