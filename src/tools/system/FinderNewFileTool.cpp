#include "tools/system/FinderNewFileTool.hpp"

#include "platform/FileSystem.hpp"
#include "platform/FinderExtensionChannel.hpp"
#include "platform/Pasteboard.hpp"
#include "platform/PasteboardType.hpp"
#include "platform/Preferences.hpp"
#include "platform/Workspace.hpp"
#include "tools/system/FinderRequest.hpp"
#include "tools/system/NewFileName.hpp"

namespace quorvane {

FinderNewFileTool::FinderNewFileTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {
    const auto stored = platform_.preferences.string(kBaseNameKey);
    baseName_ = stored && !stored->empty() && stored->find('/') == std::string::npos &&
                        !stored->starts_with(".")
                    ? *stored
                    : kDefaultBaseName;
}

void FinderNewFileTool::start() {
    subscription_ =
        platform_.finderExtension.observe([this](const std::string& message) { handle(message); });
    publish();
}

void FinderNewFileTool::stop() {
    subscription_ = {};
    publish();
}

void FinderNewFileTool::setBaseName(const std::string& name) {
    if (name.empty() || name.find('/') != std::string::npos || name.starts_with(".")) {
        lastError_ = "A file name can't be empty, contain \"/\" or start with a dot.";
    } else {
        baseName_ = name;
        lastError_.clear();
        platform_.preferences.set(kBaseNameKey, name);
    }
    publish();
}

void FinderNewFileTool::handle(const std::string& message) {
    const auto request = FinderRequest::decode(message);
    if (!request) {
        lastError_ = "The Finder extension sent a message Quorvane doesn't understand.";
    } else if (request->action == FinderRequest::Action::copyPath) {
        std::string text;
        for (const auto& item : request->items) {
            text += (text.empty() ? "" : "\n") + item;
        }
        platform_.pasteboard.clearContents();
        lastError_ = platform_.pasteboard.setString(text, pasteboard_type::string)
                         ? ""
                         : "Couldn't put the path on the clipboard.";
    } else {
        FileSystem& files = platform_.fileSystem;
        const auto folder = files.status(request->folder);
        if (!folder || folder->kind != FileStatus::Kind::directory) {
            lastError_ = request->folder + " is not a folder.";
        } else {
            const std::string name =
                NewFileName::choose(baseName_, request->kind, [&](const std::string& candidate) {
                    return files.status(request->folder + "/" + candidate).has_value();
                });
            const std::string path = (request->folder == "/" ? "" : request->folder) + "/" + name;
            lastError_ = files.createFile(path, "");
            if (lastError_.empty()) {
                lastCreated_ = path;
            } else {
                lastError_ = "Couldn't create " + path + ": " + lastError_;
            }
        }
    }
    publish();
}

SettingsPage FinderNewFileTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::TextField{"Name of new files", kDefaultBaseName, [this] { return baseName_; },
                                [this](const std::string& name) { setBaseName(name); }},
         {}});
    section.rows.push_back(
        {SettingsRow::Note{"Right-click in a Finder window for New Text File, New Markdown "
                           "File, New Empty File and Copy Path. A new file never replaces one "
                           "with the same name: \"untitled 2\" and so on. The menu comes from "
                           "Quorvane's Finder extension, which you switch on once under "
                           "Login Items & Extensions in System Settings."},
         {}});
    section.rows.push_back(
        {SettingsRow::Button{"Open Extension Settings",
                             [this] { platform_.workspace.openURL(kExtensionsSettingsURL); }},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
