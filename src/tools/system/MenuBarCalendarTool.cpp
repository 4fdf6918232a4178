#include "tools/system/MenuBarCalendarTool.hpp"

#include <cstdio>

#include "platform/CalendarEvents.hpp"
#include "platform/Preferences.hpp"
#include "platform/UserCalendar.hpp"
#include "tools/system/DayAgenda.hpp"
#include "tools/system/MonthGrid.hpp"

namespace quorvane {

namespace {

using Style = DateFormatting::Style;

struct StyleName {
    Style style;
    const char* raw;
    const char* title;
};

constexpr StyleName kStyles[] = {
    {Style::shortStyle, "short", "Short"},
    {Style::mediumStyle, "medium", "Medium"},
    {Style::longStyle, "long", "Long"},
    {Style::fullStyle, "full", "Full"},
};

Style styleNamed(const std::optional<std::string>& raw) {
    for (const auto& entry : kStyles) {
        if (raw && *raw == entry.raw) {
            return entry.style;
        }
    }
    return Style::mediumStyle;
}

const char* rawName(Style style) {
    for (const auto& entry : kStyles) {
        if (entry.style == style) {
            return entry.raw;
        }
    }
    return "medium";
}

}  // namespace

MenuBarCalendarTool::MenuBarCalendarTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      dateStyle_(styleNamed(platform.preferences.string(kDateStyleKey))),
      showEvents_(platform.preferences.boolean(kShowEventsKey).value_or(true)),
      panelContent_{PanelContent::Page{[this] { return panelPage(); }, this, 280,
                                       [this] { return panelLayout(); }}} {
    showMonth(0);
}

MenuBarCalendarTool::~MenuBarCalendarTool() {
    stop();
}

void MenuBarCalendarTool::start() {
    if (panel_) {
        return;
    }
    panel_ = std::make_unique<MenuBarPanel>(platform_.menuBar, platform_.eventMonitors,
                                            platform_.scheduler, panelContent_);
    panel_->statusItem().setImage(kItemImage, descriptor_.identity.name);
    // Every opening starts at this month, whatever month was left showing.
    panel_->onOpen = [this] { showMonth(0); };
    dayChanges_ = platform_.userCalendar.observeChanges([this] {
        refreshTitle();
        publish();
    });
    storeChanges_ = platform_.calendarEvents.observeChanges([this] { publish(); });
    refreshTitle();
    publish();
}

void MenuBarCalendarTool::stop() {
    if (!panel_) {
        return;
    }
    dayChanges_.cancel();
    storeChanges_.cancel();
    panel_.reset();
    lastError_.reset();
    publish();
}

void MenuBarCalendarTool::refreshTitle() {
    if (panel_) {
        panel_->statusItem().setTitle(
            platform_.dateFormatting.format(platform_.scheduler.date(), dateStyle_, Style::none));
    }
}

void MenuBarCalendarTool::showMonth(int offset) {
    const auto today = platform_.userCalendar.components(platform_.scheduler.date());
    if (offset == 0 || month_ == 0) {
        year_ = today.year;
        month_ = today.month;
    }
    // Months counted from year 0, so a step across a year's end is plain arithmetic.
    const int index = year_ * 12 + (month_ - 1) + offset;
    year_ = index / 12;
    month_ = index % 12 + 1;
    publish();
}

std::string MenuBarCalendarTool::monthText() {
    UserCalendar& calendar = platform_.userCalendar;
    const auto today = calendar.components(platform_.scheduler.date());
    const auto grid = MonthGrid::make(year_, month_, calendar.firstWeekday(),
                                      {today.year, today.month, today.day});
    const auto names = calendar.weekdaySymbols();
    std::string text;
    for (const int weekday : grid.columns) {
        const std::string name =
            static_cast<std::size_t>(weekday) <= names.size() ? names[weekday - 1] : "";
        text += (text.empty() ? "" : " ") +
                std::string(name.size() < 3 ? 3 - name.size() : 0, ' ') + name;
    }
    for (const auto& week : grid.weeks) {
        text += "\n";
        for (std::size_t column = 0; column < week.size(); ++column) {
            const auto& day = week[column];
            char cell[8];
            if (!day.inMonth) {
                std::snprintf(cell, sizeof cell, "   ");
            } else if (day.isToday) {
                std::snprintf(cell, sizeof cell, "[%d]", day.day);
            } else {
                std::snprintf(cell, sizeof cell, "%3d", day.day);
            }
            text += (column == 0 ? "" : " ") + std::string(cell);
        }
    }
    return text;
}

std::vector<std::string> MenuBarCalendarTool::todaysEvents() {
    std::vector<std::string> lines;
    if (!showEvents_ ||
        platform_.calendarEvents.authorizationStatus() != CalendarEvents::Access::fullAccess) {
        return lines;
    }
    UserCalendar& calendar = platform_.userCalendar;
    const auto today = calendar.components(platform_.scheduler.date());
    const int days = MonthGrid::daysIn(today.year, today.month);
    const UserCalendar::Components tomorrow =
        today.day < days   ? UserCalendar::Components{today.year, today.month, today.day + 1}
        : today.month < 12 ? UserCalendar::Components{today.year, today.month + 1, 1}
                           : UserCalendar::Components{today.year + 1, 1, 1};
    const double start = calendar.startOfDay(today);
    const double end = calendar.startOfDay(tomorrow);
    const auto time = [this](double date) {
        return platform_.dateFormatting.format(date, Style::none, Style::shortStyle);
    };
    for (const auto& event :
         DayAgenda::onDay(platform_.calendarEvents.events(start, end), start, end)) {
        lines.push_back(DayAgenda::line(event, start, end, time));
    }
    return lines;
}

std::string MenuBarCalendarTool::panelLayout() {
    return std::to_string(year_) + "-" + std::to_string(month_) + " " +
           std::to_string(static_cast<int>(platform_.calendarEvents.authorizationStatus())) +
           (showEvents_ ? " events" : "") + (lastError_ ? " error" : "");
}

void MenuBarCalendarTool::requestAccess() {
    // The answer may come after this tool is gone; then it has nobody to tell.
    platform_.calendarEvents.requestFullAccess(
        [this, alive = std::weak_ptr<int>(lifetime_)](bool granted, const std::string& error) {
            if (alive.expired()) {
                return;
            }
            if (granted) {
                lastError_.reset();
            } else {
                lastError_ = error.empty() ? kNoAccess : error;
            }
            publish();
        });
}

void MenuBarCalendarTool::setDateStyle(Style style) {
    dateStyle_ = style;
    platform_.preferences.set(kDateStyleKey, PreferenceValue(std::string(rawName(style))));
    refreshTitle();
    publish();
}

void MenuBarCalendarTool::setShowsEvents(bool on) {
    showEvents_ = on;
    platform_.preferences.set(kShowEventsKey, PreferenceValue(on));
    publish();
}

void MenuBarCalendarTool::addAccessRows(SettingsSection& section) {
    using Access = CalendarEvents::Access;
    switch (platform_.calendarEvents.authorizationStatus()) {
        case Access::fullAccess:
            break;
        case Access::notDetermined:
            section.rows.push_back(
                {SettingsRow::Button{"Show Calendar Events…", [this] { requestAccess(); }}, {}});
            break;
        case Access::restricted:
        case Access::denied:
        case Access::writeOnly:
            section.rows.push_back({SettingsRow::Warning{kNoAccess}, {}});
            break;
    }
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
}

SettingsPage MenuBarCalendarTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    std::vector<SettingsRow::ChoiceOption> options;
    for (const auto& entry : kStyles) {
        options.push_back({entry.raw, entry.title});
    }
    section.rows.push_back(
        {SettingsRow::Choice{"Date in the menu bar", std::move(options),
                             [this] { return rawName(dateStyle_); },
                             [this](const std::string& raw) { setDateStyle(styleNamed(raw)); }},
         {}});
    section.rows.push_back(
        {SettingsRow::Toggle{"Show today's events", [this] { return showEvents_; },
                             [this](bool on) { setShowsEvents(on); }, ""},
         {}});
    if (showEvents_) {
        addAccessRows(section);
    }
    section.rows.push_back(
        {SettingsRow::Note{"Click the date in the menu bar for the month and today's events. "
                           "The week starts on the day set in Language & Region. Events are only "
                           "read, from every calendar in the Calendar app, and never leave your "
                           "Mac; macOS asks once whether Quorvane may read them."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

SettingsPage MenuBarCalendarTool::panelPage() {
    const auto months = platform_.userCalendar.monthSymbols();
    const std::string monthName =
        month_ >= 1 && static_cast<std::size_t>(month_) <= months.size() ? months[month_ - 1] : "";
    SettingsSection month{monthName + " " + std::to_string(year_), {}, ""};
    month.rows.push_back({SettingsRow::Custom{"month-grid", [this] { return monthText(); }}, {}});
    month.rows.push_back({SettingsRow::Button{"‹", [this] { showMonth(-1); }}, {}});
    month.rows.push_back({SettingsRow::Button{"Today", [this] { showMonth(0); }}, {}});
    month.rows.push_back({SettingsRow::Button{"›", [this] { showMonth(1); }}, {}});
    SettingsPage page;
    page.add(std::move(month));
    if (showEvents_) {
        SettingsSection events{"Today", {}, ""};
        addAccessRows(events);
        events.rows.push_back(
            {SettingsRow::ItemList{"", [this] { return todaysEvents(); }, nullptr, "No events"},
             {}});
        page.add(std::move(events));
    }
    return page;
}

}  // namespace quorvane
