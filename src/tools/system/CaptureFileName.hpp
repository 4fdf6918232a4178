#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

// Where a recording or a screenshot is saved and what it is called: the kind and the local
// time, as the system names its own ("Screen Recording 2026-11-24 at 12.19.16.mp4"), with a
// number added when that name is taken, so an existing file is never overwritten.
class CaptureFileName {
public:
    // More copies than anyone makes in one second; past it, saving fails instead of looping.
    static constexpr int kMaxNumber = 999;

    struct LocalTime {
        int year = 2001;
        int month = 1;
        int day = 1;
        int hour = 0;
        int minute = 0;
        int second = 0;
    };

    // A date (seconds since 2001-01-01 00:00:00 UTC) in the local time zone.
    static LocalTime localTime(double date);
    static std::string stem(std::string_view kind, const LocalTime& time);
    // "<folder>/<stem>.<extension>", else "<stem> 2.<extension>", "<stem> 3…" as the system
    // numbers its own; nothing when every number up to kMaxNumber is taken.
    static std::optional<std::string> freePath(
        const std::string& folder, const std::string& stem, std::string_view extension,
        const std::function<bool(const std::string& path)>& exists);
    // A folder setting as a path: "~" stands for the home folder; an empty or relative
    // setting, which could land anywhere, gives `fallback`.
    static std::string folder(const std::string& setting, const std::string& home,
                              const std::string& fallback);
};

}  // namespace quorvane
