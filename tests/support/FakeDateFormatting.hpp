#pragma once

#include <string>

#include "platform/DateFormatting.hpp"

namespace quorvane {

// Names what it was asked for, so a test sees which date went in with which styles:
// "date(800000000,3,0)".
struct FakeDateFormatting : DateFormatting {
    std::string format(double date, Style dateStyle, Style timeStyle) override {
        return "date(" + std::to_string(static_cast<long long>(date)) + "," +
               std::to_string(static_cast<unsigned>(dateStyle)) + "," +
               std::to_string(static_cast<unsigned>(timeStyle)) + ")";
    }
};

}  // namespace quorvane
