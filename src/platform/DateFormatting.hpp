#pragma once

#include <cstdint>
#include <string>

namespace quorvane {

// Dates as people read them, in the user's own locale, calendar and time zone (on macOS, a date
// formatter on the current locale with the chosen styles).
class DateFormatting {
public:
    // NSDateFormatterStyle, with its raw numbers.
    enum class Style : std::uint32_t {
        none = 0,
        shortStyle = 1,
        mediumStyle = 2,
        longStyle = 3,
        fullStyle = 4,
    };

    virtual ~DateFormatting() = default;

    // `date` is seconds since 2001-01-01 00:00:00 UTC; a style of none leaves that part out.
    virtual std::string format(double date, Style dateStyle, Style timeStyle) = 0;
};

}  // namespace quorvane
