#include "tools/system/MenuBarStatsTool.hpp"

#include <cstdio>
#include <string>

#include "platform/HostStatistics.hpp"
#include "platform/Preferences.hpp"

namespace quorvane {

namespace {

std::string failure(const char* what, int status) {
    return std::string("Reading the ") + what + " failed (status " + std::to_string(status) + ")";
}

std::string gigabytes(double bytes) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f GB", bytes / 1e9);
    return text;
}

}  // namespace

MenuBarStatsTool::MenuBarStatsTool(const ToolDescriptor& descriptor, const Platform& platform)
    : descriptor_(descriptor),
      platform_(platform),
      cpu_(platform.preferences.boolean(kCpuKey).value_or(true)),
      memory_(platform.preferences.boolean(kMemoryKey).value_or(true)),
      network_(platform.preferences.boolean(kNetworkKey).value_or(false)),
      disk_(platform.preferences.boolean(kDiskKey).value_or(false)),
      panelContent_{PanelContent::Page{[this] { return panelPage(); }, this, 260}} {}

MenuBarStatsTool::~MenuBarStatsTool() {
    stop();
}

void MenuBarStatsTool::start() {
    if (panel_) {
        return;
    }
    panel_ = std::make_unique<MenuBarPanel>(platform_.menuBar, platform_.eventMonitors,
                                            platform_.scheduler, panelContent_);
    panel_->statusItem().setImage(kItemImage, descriptor_.identity.name);
    onScreen_ = panel_->statusItem().observeOnScreen([this] { onScreenChanged(); });
    onScreenChanged();
}

void MenuBarStatsTool::stop() {
    if (!panel_) {
        return;
    }
    timer_.cancel();
    onScreen_.cancel();
    panel_.reset();
    last_.reset();
    reading_.reset();
    lastError_.reset();
    publish();
}

void MenuBarStatsTool::onScreenChanged() {
    if (!panel_->statusItem().isOnScreen()) {
        timer_.cancel();
        return;
    }
    if (timer_) {
        return;
    }
    // A reading at once, so the figures do not wait for the next tick; the counters it
    // compares with may be old, which only makes the first figure an average.
    sample();
    timer_ = platform_.scheduler.every(kInterval, [this] { sample(); });
}

std::optional<StatsSample> MenuBarStatsTool::read() {
    StatsSample now;
    now.at = platform_.scheduler.now();
    HostStatistics& host = platform_.hostStatistics;
    if (const int status = host.cpuTicks(now.cpu); status != 0) {
        lastError_ = failure("processor's counters", status);
        return std::nullopt;
    }
    if (const int status = host.memory(now.memory); status != 0) {
        lastError_ = failure("memory's counters", status);
        return std::nullopt;
    }
    if (const int status = host.interfaces(now.interfaces); status != 0) {
        lastError_ = failure("network's counters", status);
        return std::nullopt;
    }
    if (const int status = host.disk(now.disk); status != 0) {
        lastError_ = failure("disk's free space", status);
        return std::nullopt;
    }
    lastError_.reset();
    return now;
}

void MenuBarStatsTool::sample() {
    auto now = read();
    if (now) {
        if (last_) {
            reading_ = SystemStats::between(*last_, *now);
        }
        last_ = std::move(now);
    }
    showTitle();
    publish();
}

void MenuBarStatsTool::showTitle() {
    if (!panel_) {
        return;
    }
    // Until two readings exist there is nothing honest to show but the symbol.
    panel_->statusItem().setTitle(
        reading_ && !lastError_ ? SystemStats::title(*reading_, cpu_, memory_, network_, disk_)
                                : "");
}

template <typename Self>
auto& MenuBarStatsTool::part(Self& self, const char* key) {
    const std::string_view which = key;
    return which == kCpuKey      ? self.cpu_
           : which == kMemoryKey ? self.memory_
           : which == kDiskKey   ? self.disk_
                                 : self.network_;
}

bool MenuBarStatsTool::shows(const char* key) const {
    return part(*this, key);
}

void MenuBarStatsTool::setShows(const char* key, bool on) {
    part(*this, key) = on;
    platform_.preferences.set(key, PreferenceValue(on));
    showTitle();
    publish();
}

SettingsPage MenuBarStatsTool::settingsPage() {
    SettingsSection section{"In the menu bar", {}, ""};
    const auto toggle = [&](const char* label, const char* key) {
        section.rows.push_back(
            {SettingsRow::Toggle{label, [this, key] { return shows(key); },
                                 [this, key](bool on) { setShows(key, on); }, ""},
             {}});
    };
    toggle("Processor", kCpuKey);
    toggle("Memory", kMemoryKey);
    toggle("Network", kNetworkKey);
    toggle("Disk", kDiskKey);
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    section.rows.push_back(
        {SettingsRow::Note{"The figures are measured every two seconds while the item is in "
                           "sight, and not at all while it is hidden, so they cost next to "
                           "nothing. Memory counts what apps hold and macOS cannot reclaim at "
                           "once, as Activity Monitor's \"Memory Used\" does. Click the item for "
                           "the details."},
         {}});
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

SettingsPage MenuBarStatsTool::panelPage() {
    SettingsSection section{descriptor_.identity.name, {}, ""};
    const auto note = [&section](std::string text) {
        section.rows.push_back({SettingsRow::Note{std::move(text)}, {}});
    };
    if (lastError_) {
        section.rows.push_back({SettingsRow::Warning{*lastError_}, {}});
    } else if (!reading_) {
        note("Measuring…");
    } else {
        note("Processor: " + SystemStats::percent(reading_->cpu) + " in use");
        note("Memory: " + gigabytes(reading_->memoryUsedBytes) + " of " +
             gigabytes(reading_->memoryTotalBytes) + " in use");
        note("Network: ↓" + SystemStats::rate(reading_->receivedPerSecond) + " ↑" +
             SystemStats::rate(reading_->sentPerSecond));
        note("Disk: " + gigabytes(reading_->diskTotalBytes - reading_->diskUsedBytes) +
             " free of " + gigabytes(reading_->diskTotalBytes));
    }
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
