#include "mac/MacPorts.hpp"

#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"

namespace quorvane {

namespace {

// NSDateFormatter on the user's current locale, calendar and time zone.
class MacDateFormatting final : public DateFormatting {
public:
    std::string format(double date, Style dateStyle, Style timeStyle) override {
        // unconfirmed: check on a Mac first. NSDateFormatter is not in the fact sheet; written
        // from Apple's reference: a new formatter takes the current locale, calendar and time
        // zone, and NSDateFormatterStyle's raw values are 0 (none) to 4 (full), as Style's are.
        // A new formatter per call picks up a change of the user's locale since the last one;
        // expansions are far too rare for its cost to matter.
        NSDateFormatter* formatter = [[NSDateFormatter alloc] init];
        formatter.locale = [NSLocale autoupdatingCurrentLocale];
        formatter.dateStyle = static_cast<NSDateFormatterStyle>(dateStyle);
        formatter.timeStyle = static_cast<NSDateFormatterStyle>(timeStyle);
        return utf8String(
            [formatter stringFromDate:[NSDate dateWithTimeIntervalSinceReferenceDate:date]]);
    }
};

}  // namespace

std::unique_ptr<DateFormatting> makeMacDateFormatting() {
    return std::make_unique<MacDateFormatting>();
}

}  // namespace quorvane
