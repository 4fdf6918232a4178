#pragma once

#include "platform/UserCalendar.hpp"

namespace quorvane {

// The Gregorian calendar on the process's time zone (or UTC), weeks from Sunday, English names.
class PortableUserCalendar : public UserCalendar {
public:
    explicit PortableUserCalendar(bool utc = false) : utc_(utc) {}

    int firstWeekday() override { return 1; }
    Components components(double date) override;
    double startOfDay(const Components& day) override;
    std::vector<std::string> monthSymbols() override;
    std::vector<std::string> weekdaySymbols() override;
    Subscription observeChanges(std::function<void()>) override { return {}; }

private:
    bool utc_;
};

}  // namespace quorvane
