#include "cli/ClipboardCommand.hpp"

#include <cmath>
#include <ctime>
#include <ostream>

#include "base/Json.hpp"
#include "tools/keyboard/ClipText.hpp"
#include "tools/keyboard/ClipboardListModel.hpp"
#include "tools/keyboard/ClipboardStore.hpp"

namespace quorvane {

namespace {

constexpr double kUnixOf2001 = 978307200;

std::string preview(const ClipItem& item) {
    switch (item.kind) {
        case ClipItem::Kind::text:
            return item.text ? ClipText::preview(*item.text, 80) : std::string();
        case ClipItem::Kind::image:
            return item.imageType.value_or("image");
        case ClipItem::Kind::files: {
            std::string names;
            for (const auto& path : item.filePaths.value_or(std::vector<std::string>{})) {
                names +=
                    (names.empty() ? "" : ", ") + std::filesystem::path(path).filename().string();
            }
            return names;
        }
    }
    return {};
}

void print(const ClipboardHistory::Items& items, bool json, std::ostream& out) {
    if (json) {
        Json list = Json::emptyArray();
        for (const ClipItem& item : items) {
            Json entry = Json::emptyObject();
            entry.set("id", item.id.text());
            entry.set("kind", rawValue(item.kind));
            entry.set("preview", preview(item));
            entry.set("app", item.app ? Json(*item.app) : Json());
            entry.set("date", ClipboardCommand::dateText(item.date));
            list.push(std::move(entry));
        }
        out << list.serialize(Json::Layout::pretty) << "\n";
        return;
    }
    for (const ClipItem& item : items) {
        out << rawValue(item.kind) << "\t" << preview(item) << "\t" << item.app.value_or("-")
            << "\t" << ClipboardCommand::dateText(item.date) << "\n";
    }
}

}  // namespace

std::string ClipboardCommand::dateText(double secondsSince2001) {
    const auto unix = static_cast<std::time_t>(std::floor(secondsSince2001 + kUnixOf2001));
    std::tm parts{};
    gmtime_r(&unix, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text;
}

bool ClipboardCommand::run(const std::vector<std::string>& operands,
                           const std::filesystem::path& folder, std::ostream& out,
                           std::string& error) {
    const ClipboardStore store(folder);
    const std::string verb = operands.empty() ? std::string() : operands[0];
    if (verb == "clear" && operands.size() == 1) {
        store.clear();
        return true;
    }
    const bool list = verb == "list" &&
                      (operands.size() == 1 || (operands.size() == 2 && operands[1] == "--json"));
    const bool search = verb == "search" && operands.size() >= 2;
    if (!list && !search) {
        error = "usage: quorvane clipboard list [--json] | search WORD | clear";
        return false;
    }
    const auto items = store.read();
    if (!items) {
        error = "the clipboard history in " + store.historyPath().string() +
                " cannot be read; it was left as it is";
        return false;
    }
    if (list) {
        print(*items, operands.size() == 2, out);
        return true;
    }
    std::string query;
    for (std::size_t i = 1; i < operands.size(); ++i) {
        query += (i > 1 ? " " : "") + operands[i];
    }
    ClipboardListModel model;
    model.setItems(*items);
    model.setQuery(query);
    ClipboardHistory::Items found;
    for (const std::size_t index : model.shown()) {
        found.push_back((*items)[index]);
    }
    print(found, false, out);
    return true;
}

std::string ClipboardCommand::usage() {
    return "  clipboard list [--json]    the clipboard history, newest first: kind, preview, app, "
           "date\n"
           "  clipboard search WORD      the copies that contain the word\n"
           "  clipboard clear            delete the clipboard history and its images\n";
}

}  // namespace quorvane
