#pragma once

#include "platform/DateFormatting.hpp"

namespace quorvane {

// NSDateFormatter on the user's current locale, calendar and time zone.
class MacDateFormatting final : public DateFormatting {
public:
    std::string format(double date, Style dateStyle, Style timeStyle) override;
};

}  // namespace quorvane
