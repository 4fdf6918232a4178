#pragma once

#include "platform/DateFormatting.hpp"

namespace quorvane {

// English dates in the local time zone, for the command line: "November 23, 2026", "9:41 PM".
class PortableDateFormatting : public DateFormatting {
public:
    std::string format(double date, Style dateStyle, Style timeStyle) override;
};

}  // namespace quorvane
