#include "cli/LayoutsCommand.hpp"

#include <cmath>
#include <ostream>

#include "platform/Preferences.hpp"
#include "tools/windows/WindowLayoutsTool.hpp"
#include "tools/windows/WindowSnapshots.hpp"

namespace quorvane {

namespace {

std::string whole(double value) {
    return std::to_string(static_cast<long long>(std::lround(value)));
}

}  // namespace

bool LayoutsCommand::checkShape(const std::vector<std::string>& operands, std::string& error) {
    const bool ok = (operands.size() == 1 && operands[0] == "list") ||
                    (operands.size() == 2 && (operands[0] == "show" || operands[0] == "remove"));
    if (!ok) {
        error = "usage: quorvane layouts list | show NAME | remove NAME";
    }
    return ok;
}

bool LayoutsCommand::run(Preferences& preferences, const std::vector<std::string>& operands,
                         std::ostream& out, std::string& error) {
    bool unreadable = false;
    auto layouts = WindowSnapshots::load(preferences, WindowLayoutsTool::kLayoutsKey, unreadable);
    if (unreadable) {
        error = std::string("the saved layouts (") + WindowLayoutsTool::kLayoutsKey +
                ") cannot be read; nothing was changed";
        return false;
    }
    if (operands[0] == "list") {
        if (layouts.empty()) {
            out << "No saved layouts.\n";
        }
        for (const auto& [name, layout] : layouts.all()) {
            out << name << "\t" << layout.windows.size()
                << (layout.windows.size() == 1 ? " window" : " windows") << "\n";
        }
        return true;
    }
    const std::string& name = operands[1];
    const WindowSnapshot* layout = layouts.find(name);
    if (!layout) {
        error = "there is no layout named \"" + name + "\" (run 'quorvane layouts list')";
        return false;
    }
    if (operands[0] == "show") {
        out << name << " (displays: " << layout->displayKey() << ")\n";
        for (const auto& window : layout->windows) {
            const Rect& f = window.frame;
            out << "  " << window.appName << " (" << window.bundleID << ")"
                << (window.title.empty() ? "" : " \"" + window.title + "\"") << " at "
                << whole(f.minX()) << "," << whole(f.minY()) << " size " << whole(f.width()) << "x"
                << whole(f.height()) << "\n";
        }
        return true;
    }
    layouts.remove(name);
    layouts.save(preferences, WindowLayoutsTool::kLayoutsKey);
    out << "Removed " << name << ".\n";
    return true;
}

std::string LayoutsCommand::usage() {
    return "  layouts list               the saved window layouts\n"
           "  layouts show NAME          a saved layout's windows and where they go\n"
           "  layouts remove NAME        forget a saved layout\n";
}

}  // namespace quorvane
