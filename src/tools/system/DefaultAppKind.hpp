#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

// A kind of file or link the user picks one app for. Each kind covers one or more handlers,
// named "scheme:<URL scheme>" or "type:<content type>"; choosing an app sets all of them, and
// the app shown is the first handler's.
struct DefaultAppKind {
    std::string_view key;
    std::string_view title;
    std::vector<std::string> handlers;

    static const std::vector<DefaultAppKind>& all();
    static const DefaultAppKind* find(std::string_view key);

    static bool isScheme(const std::string& handler) { return handler.starts_with("scheme:"); }
    // The scheme or content type the handler names.
    static std::string subject(const std::string& handler) {
        return handler.substr(handler.find(':') + 1);
    }
};

}  // namespace quorvane
