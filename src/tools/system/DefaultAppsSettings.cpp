#include "platform/DefaultApplications.hpp"
#include "tools/system/DefaultAppKind.hpp"
#include "tools/system/DefaultAppsTool.hpp"

namespace quorvane {

SettingsPage DefaultAppsTool::settingsPage() {
    SettingsSection section{"", {}, ""};
    for (const auto& kind : DefaultAppKind::all()) {
        const std::string& first = kind.handlers.front();
        const std::string subject = DefaultAppKind::subject(first);
        auto& handlers = platform_.defaultApplications;
        const auto now = handlerNow(first);
        auto options = DefaultAppChoices::options(
            now, DefaultAppKind::isScheme(first) ? handlers.applicationsForURLScheme(subject)
                                                 : handlers.applicationsForContentType(subject));
        if (!now) {
            options.insert(options.begin(), SettingsRow::ChoiceOption{"", "None"});
        }
        const std::string key(kind.key);
        section.rows.push_back(
            {SettingsRow::Choice{std::string(kind.title), std::move(options),
                                 [this, key] { return current(key).value_or(""); },
                                 [this, key](const std::string& path) { choose(key, path); }},
             {}});
    }
    section.rows.push_back(
        {SettingsRow::Note{"Your Mac asks you to confirm a new web browser. Turning Default Apps "
                           "off gives each kind of file and link back the app it had before you "
                           "changed it here."},
         {}});
    section.rows.push_back(SettingsRow::errorWarning(lastError_));
    SettingsPage page;
    page.add(std::move(section));
    return page;
}

}  // namespace quorvane
