#include "cli/UninstallScanCommand.hpp"

#include <filesystem>
#include <ostream>

#include "platform/FileSystem.hpp"
#include "tools/system/LeftoverScan.hpp"
#include "tools/system/SizeTally.hpp"

namespace quorvane {

bool UninstallScanCommand::run(const std::vector<std::string>& operands, FileSystem& fileSystem,
                               ProcessFacts& facts, std::ostream& out, std::string& error) {
    if (operands.size() != 1) {
        error = "usage: quorvane uninstall-scan APP (an app's path or bundle identifier)";
        return false;
    }
    std::string named = operands[0];
    // "Maker.app" in the current folder is a path, though it has no slash.
    if (named.find('/') == std::string::npos && named.ends_with(".app") &&
        fileSystem.status(named)) {
        named = std::filesystem::absolute(named).string();
    }
    const auto app = LeftoverScan::identify(facts, named, error);
    if (!app) {
        return false;
    }
    const LeftoverMatcher matcher(*app, {});
    if (auto refusal = matcher.refusal(); !refusal.empty()) {
        error = refusal;
        return false;
    }
    std::uint64_t total = 0;
    SizeTally tally;
    if (!app->bundlePath.empty() && fileSystem.status(app->bundlePath)) {
        const auto bytes = tally.measure(fileSystem, app->bundlePath);
        out << SizeTally::format(bytes) << "\t" << app->bundlePath << "\n";
        total += bytes;
    }
    for (const auto& item : LeftoverScan::find(
             fileSystem, matcher, LeftoverScan::libraries(fileSystem.homeDirectory()))) {
        out << SizeTally::format(item.bytes) << "\t" << item.path << "\n";
        total += item.bytes;
    }
    out << "Uninstalling " << (app->name.empty() ? app->bundleID : app->name) << " would move "
        << SizeTally::format(total) << " to the Trash; nothing was removed.\n";
    return true;
}

std::string UninstallScanCommand::usage() {
    return "  uninstall-scan APP         what uninstalling an app (path or bundle id) would "
           "Trash\n";
}

}  // namespace quorvane
