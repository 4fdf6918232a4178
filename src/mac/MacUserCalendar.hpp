#pragma once

#include "platform/UserCalendar.hpp"

namespace quorvane {

// NSCalendar's current calendar, read anew on every call so a change of region or time zone
// counts at once; NSDateFormatter for the names. Main thread only.
class MacUserCalendar final : public UserCalendar {
public:
    int firstWeekday() override;
    Components components(double date) override;
    double startOfDay(const Components& day) override;
    std::vector<std::string> monthSymbols() override;
    std::vector<std::string> weekdaySymbols() override;
    Subscription observeChanges(std::function<void()> handler) override;
};

}  // namespace quorvane
