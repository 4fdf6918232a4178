#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

// Whether an application whose window just closed should now quit.
struct LastWindowRule {
    // Finder is the desktop: quitting it would only make it start again.
    static constexpr std::string_view kFinder = "com.apple.finder";
    // A window that closes more than this long after the user's last click or key press closed
    // itself (a splash screen, a finished download sheet), and that is no reason to quit.
    static constexpr double kUserActionWindow = 1.5;

    struct App {
        std::string bundleID;
        bool isRegular = true;  // has a Dock icon
        bool isOwnProcess = false;
        // The windows it still has, minimized ones included: a minimized window is still open.
        // Unknown when the application did not answer.
        bool windowsKnown = false;
        int windowCount = 0;
        // The user clicked or typed shortly before the window closed.
        bool userClosedIt = false;
    };

    enum class Verdict { quit, excepted, hasWindows, unknown, notByUser };

    static Verdict decide(const App& app, const std::vector<std::string>& exceptedBundleIDs);
};

}  // namespace quorvane
