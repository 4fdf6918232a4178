#include <cmath>

#include "tools/sound/AppVolumeTool.hpp"

namespace quorvane {

namespace {

std::string percent(double level) {
    return std::to_string(static_cast<long>(std::lround(level * 100))) + "%";
}

std::set<std::string> listedIDs(const AudioProcessMonitor& monitor,
                                const std::map<std::string, double>& volumes,
                                const std::set<std::string>& muted) {
    std::set<std::string> listed = monitor.playedIDs();
    for (const auto& entry : volumes) {
        listed.insert(entry.first);
    }
    listed.insert(muted.begin(), muted.end());
    for (const AudioApp& app : monitor.apps()) {
        if (app.isPlaying) {
            listed.insert(app.id);
        }
    }
    return listed;
}

}  // namespace

std::string AppVolumeTool::mixerLayout() {
    std::string layout = lastError_.value_or("");
    const auto& apps = monitor_.apps();
    for (const std::size_t index : list_.rows(apps, listedIDs(monitor_, volumes_, mutedIDs_))) {
        layout += "\n" + apps[index].id + "\t" + apps[index].name;
    }
    return layout;
}

void AppVolumeTool::addMixer(SettingsPage& page, bool compact) {
    list_.compact = compact;
    const std::set<std::string> listed = listedIDs(monitor_, volumes_, mutedIDs_);
    const auto& apps = monitor_.apps();

    SettingsSection top{"", {}, ""};
    top.rows.push_back(SettingsRow::errorWarning(lastError_));
    const auto rows = list_.rows(apps, listed);
    if (rows.empty()) {
        top.rows.push_back({SettingsRow::Note{kListedHelp}, {}});
    }
    if (!top.rows.empty()) {
        page.add(std::move(top));
    }

    for (const std::size_t index : rows) {
        const AudioApp& app = apps[index];
        const std::string id = app.id;
        SettingsSection section{app.name, {}, "", app.bundleURL.value_or("")};
        section.rows.push_back(
            {SettingsRow::Slider{"Volume", 0.0, kMaximumLevel, 0.01,
                                 [this, id] { return level(id); },
                                 [this, id](double value) { setVolume(id, value); }, percent},
             {}});
        section.rows.push_back({SettingsRow::Toggle{"Mute", [this, id] { return isMuted(id); },
                                                    [this, id](bool on) { setMuted(id, on); }, ""},
                                {}});
        section.rows.push_back({SettingsRow::Button{kReset, [this, id] { reset(id); }}, [this, id] {
                                    return volumes_.contains(id) || mutedIDs_.contains(id);
                                }});
        page.add(std::move(section));
    }

    SettingsSection all{"", {}, ""};
    all.rows.push_back({SettingsRow::Button{kResetAll, [this] { resetAll(); }},
                        [this] { return hasAdjustments(); }});
    if (!rows.empty() && !compact) {
        all.rows.push_back({SettingsRow::Note{kListedHelp}, {}});
    }
    page.add(std::move(all));
}

SettingsPage AppVolumeTool::mixerPage() {
    SettingsPage page;
    addMixer(page, true);
    return page;
}

SettingsPage AppVolumeTool::settingsPage() {
    SettingsPage page;
    addMixer(page, false);
    page.add({"", {{SettingsRow::Note{kLevelsHelp}, {}}}, ""});
    page.add({kIndicatorHeading, {{SettingsRow::Note{kIndicatorHelp}, {}}}, ""});
    return page;
}

}  // namespace quorvane
