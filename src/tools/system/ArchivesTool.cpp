#include "tools/system/ArchivesTool.hpp"

#include "platform/Archives.hpp"
#include "platform/FileSystem.hpp"
#include "tools/system/ArchiveExtractor.hpp"
#include "tools/system/ArchivePaths.hpp"

namespace quorvane {

ArchivesTool::ArchivesTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor), platform_(platform) {}

bool ArchivesTool::isAvailable() const {
    return platform_.archives.isAvailable();
}

void ArchivesTool::start() {
    running_ = true;
    lastError_.clear();
    publish();
}

void ArchivesTool::stop() {
    running_ = false;
    publish();
}

std::string ArchivesTool::open(const std::string& archive) {
    if (!running_) {
        lastError_ = kOff;
        publish();
        return {};
    }
    const auto slash = archive.find_last_of('/');
    if (slash == std::string::npos) {
        lastError_ = "\"" + archive + "\" is not a full path";
        publish();
        return {};
    }
    const std::string parent = archive.substr(0, slash == 0 ? 1 : slash);
    const std::string base = parent == "/" ? "" : parent;
    const std::string name = ArchivePaths::besideFolderName(
        archive.substr(slash + 1), [&](const std::string& candidate) {
            return platform_.fileSystem.status(base + "/" + candidate).has_value();
        });
    const std::string folder = base + "/" + name;
    std::vector<std::string> written;
    std::string error;
    if (!ArchiveExtractor::extract(platform_.archives, archive, folder, written, error)) {
        lastError_ = archive.substr(slash + 1) + ": " + error;
        publish();
        return {};
    }
    lastError_.clear();
    recent_.insert(recent_.begin(), archive.substr(slash + 1) + " → " + folder + " (" +
                                        std::to_string(written.size()) + " items)");
    if (recent_.size() > kRecentCount) {
        recent_.pop_back();
    }
    publish();
    return folder;
}

SettingsPage ArchivesTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    section.rows.push_back(
        {SettingsRow::Note{"Double-click a RAR, 7z, tar, xz or other archive and Quorvane "
                           "unpacks it into a new folder beside it, named after it. Nothing "
                           "in an archive can write outside that folder, and no existing file "
                           "is replaced."},
         {}});
    section.rows.push_back(
        {SettingsRow::TextField{"Extract an archive", "Path of the archive",
                                [this] { return typed_; },
                                [this](const std::string& path) { typed_ = path; }},
         {}});
    section.rows.push_back({SettingsRow::Button{"Extract Beside It", [this] { open(typed_); }},
                            [this] { return !typed_.empty(); }});
    section.rows.push_back(
        {SettingsRow::ItemList{
             "Recently extracted", [this] { return recent_; }, {}, "Nothing extracted yet."},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
