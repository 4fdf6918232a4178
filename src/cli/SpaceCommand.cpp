#include "cli/SpaceCommand.hpp"

#include <ostream>

#include "base/Json.hpp"
#include "platform/FileSystem.hpp"
#include "tools/system/SizeTally.hpp"
#include "tools/system/SpaceScan.hpp"

namespace quorvane {

bool SpaceCommand::run(const std::vector<std::string>& operands, FileSystem& fileSystem,
                       std::ostream& out, std::string& error) {
    const bool json = operands.size() == 2 && operands[1] == "--json";
    if (operands.empty() || operands[0] != "scan" || (operands.size() == 2 && !json) ||
        operands.size() > 2) {
        error = "usage: quorvane space scan [--json]";
        return false;
    }
    // The command line sees no running apps, so every cache counts as one no app is using.
    const auto items = SpaceScan::scan(fileSystem, fileSystem.homeDirectory(), {});
    if (json) {
        Json list = Json::emptyArray();
        for (const auto& item : items) {
            Json entry = Json::emptyObject();
            entry.set("category", item.category);
            entry.set("title", SpaceScan::category(item.category)->title);
            entry.set("path", item.path);
            entry.set("bytes", item.bytes);
            list.push(std::move(entry));
        }
        Json result = Json::emptyObject();
        result.set("items", std::move(list));
        result.set("removableBytes", SpaceScan::total(items, false));
        result.set("trashBytes", SpaceScan::total(items, true) - SpaceScan::total(items, false));
        out << result.serialize(Json::Layout::pretty) << "\n";
        return true;
    }
    for (const auto& item : items) {
        out << SizeTally::format(item.bytes) << "\t" << SpaceScan::category(item.category)->title
            << "\t" << item.path << "\n";
    }
    out << "Free Up Space would move " << SizeTally::format(SpaceScan::total(items, false))
        << " to the Trash; nothing was removed.\n";
    return true;
}

std::string SpaceCommand::usage() {
    return "  space scan [--json]        what Free Up Space would remove, with sizes (removes "
           "nothing)\n";
}

}  // namespace quorvane
