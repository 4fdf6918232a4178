#include "tools/system/CaptureFileName.hpp"

#include <cmath>
#include <cstdio>
#include <ctime>

namespace quorvane {

namespace {

// Seconds between the Unix epoch and 2001-01-01 00:00:00 UTC.
constexpr double kUnixToReference = 978307200;

std::string joined(const std::string& folder, const std::string& name) {
    if (folder.empty() || folder.back() == '/') {
        return folder + name;
    }
    return folder + "/" + name;
}

}  // namespace

CaptureFileName::LocalTime CaptureFileName::localTime(double date) {
    const auto seconds = static_cast<std::time_t>(std::floor(date + kUnixToReference));
    std::tm local{};
    localtime_r(&seconds, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

std::string CaptureFileName::stem(std::string_view kind, const LocalTime& time) {
    char stamp[64];
    std::snprintf(stamp, sizeof stamp, " %04d-%02d-%02d at %02d.%02d.%02d", time.year, time.month,
                  time.day, time.hour, time.minute, time.second);
    return std::string(kind) + stamp;
}

std::optional<std::string> CaptureFileName::freePath(
    const std::string& folder, const std::string& stem, std::string_view extension,
    const std::function<bool(const std::string& path)>& exists) {
    const std::string dotted = "." + std::string(extension);
    for (int number = 1; number <= kMaxNumber; ++number) {
        const std::string name =
            number == 1 ? stem + dotted : stem + " " + std::to_string(number) + dotted;
        std::string path = joined(folder, name);
        if (!exists(path)) {
            return path;
        }
    }
    return std::nullopt;
}

std::string CaptureFileName::folder(const std::string& setting, const std::string& home,
                                    const std::string& fallback) {
    if (setting == "~") {
        return home;
    }
    if (setting.starts_with("~/")) {
        return joined(home, setting.substr(2));
    }
    if (!setting.starts_with("/")) {
        return fallback;
    }
    return setting;
}

}  // namespace quorvane
