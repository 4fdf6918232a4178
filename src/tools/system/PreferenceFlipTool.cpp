#include "tools/system/PreferenceFlipTool.hpp"

#include <cmath>
#include <sstream>

#include "app/SystemPreference.hpp"

namespace quorvane {

namespace {

std::string valueText(const PreferenceValue& value) {
    if (const auto* flag = value.boolean()) {
        return *flag ? "true" : "false";
    }
    if (const auto* integer = value.integer()) {
        return std::to_string(*integer);
    }
    if (const auto* real = value.real()) {
        std::ostringstream text;
        text << *real;
        return text.str();
    }
    if (const auto* string = value.string()) {
        return "\"" + *string + "\"";
    }
    return toString(value.kind());
}

std::string domainText(const SystemPreferenceDomain& domain) {
    using enum SystemPreferenceDomain::Kind;
    switch (domain.kind()) {
        case global:
            return "all apps";
        case globalThisMac:
            return "all apps, this Mac only";
        case appThisMac:
            return domain.name() + ", this Mac only";
        case app:
        case dock:
            break;
    }
    return domain.name();
}

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += (i == 0 ? "" : i + 1 == names.size() ? " and " : ", ") + names[i];
    }
    return text;
}

}  // namespace

PreferenceFlipTool::PreferenceFlipTool(const ToolDescriptor& descriptor, const Platform& platform,
                                       const PreferenceFlipTable& table)
    : descriptor_(descriptor), platform_(platform), table_(table) {}

std::unique_ptr<Tool> PreferenceFlipTool::build(const ToolDescriptor& descriptor,
                                                const Platform& platform) {
    const PreferenceFlipTable* table = PreferenceFlipTable::find(descriptor.identity.id);
    if (table == nullptr) {
        return nullptr;
    }
    return std::make_unique<PreferenceFlipTool>(descriptor, platform, *table);
}

void PreferenceFlipTool::start() {
    running_ = true;
    apply();
}

void PreferenceFlipTool::stop() {
    if (!running_) {
        return;
    }
    running_ = false;
    restoreAll();
}

void PreferenceFlipTool::tidy() {
    restoreAll();
}

void PreferenceFlipTool::settingsChanged() {
    if (running_) {
        apply();
    }
    publish();
}

void PreferenceFlipTool::apply() {
    lastError_.clear();
    bool changed = false;
    for (const auto& flip : wantedFlips()) {
        try {
            changed =
                (flip.value ? SystemPreference::set(platform_, flip.key, flip.value, flip.domain)
                            : SystemPreference::restore(platform_, flip.key, flip.domain)) ||
                changed;
        } catch (const SystemPreferenceError& error) {
            if (lastError_.empty()) {
                lastError_ = error.what();
            }
        }
    }
    restartIfChanged(changed);
}

void PreferenceFlipTool::restoreAll() {
    lastError_.clear();
    bool changed = false;
    for (const auto& flip : wantedFlips()) {
        try {
            changed = SystemPreference::restore(platform_, flip.key, flip.domain) || changed;
        } catch (const SystemPreferenceError& error) {
            if (lastError_.empty()) {
                lastError_ = error.what();
            }
        }
    }
    restartIfChanged(changed);
}

void PreferenceFlipTool::restartIfChanged(bool changed) {
    if (changed) {
        for (const auto& process : table_.restarts) {
            SystemPreference::restart(platform_, process);
        }
    }
    publish();
}

std::string PreferenceFlipTool::describe(const PreferenceFlip& flip) const {
    return domainText(flip.domain) + ": " + flip.key + " " +
           (flip.value ? "= " + valueText(*flip.value) : "left as you have it");
}

SettingsPage PreferenceFlipTool::settingsPage() {
    SettingsPage page;
    addSettings(page);

    SettingsSection changes{"What Quorvane changes", {}, ""};
    changes.rows.push_back({SettingsRow::ItemList{"Settings",
                                                  [this] {
                                                      std::vector<std::string> lines;
                                                      for (const auto& flip : wantedFlips()) {
                                                          lines.push_back(describe(flip));
                                                      }
                                                      return lines;
                                                  },
                                                  nullptr, ""},
                            {}});
    if (!table_.restarts.empty()) {
        changes.rows.push_back(
            {SettingsRow::Note{"Turning this on or off restarts " + joined(table_.restarts) +
                               ", which " + (table_.restarts.size() == 1 ? "comes" : "come") +
                               " back by itself in a moment."},
             {}});
    }
    if (!table_.takesEffect.empty()) {
        changes.rows.push_back({SettingsRow::Note{table_.takesEffect}, {}});
    }
    changes.rows.push_back(
        {SettingsRow::Note{"Turning it off puts back exactly what you had before, even after "
                           "Quorvane quit unexpectedly."},
         {}});
    changes.rows.push_back(SettingsRow::errorWarning(lastError_));
    page.add(std::move(changes));
    return page;
}

}  // namespace quorvane
