#include "mac/MacCommandHost.hpp"

#include <string>

#include "app/ToolRegistry.hpp"
#include "mac/MacNotificationBus.hpp"
#include "mac/MacPorts.hpp"
#include "mac/MacPreferences.hpp"
#include "portable/SpawnedChildProcesses.hpp"

namespace quorvane {

namespace {

class MacCommandHost final : public CommandHost {
public:
    // CFPreferences opens no file here, so there is no failure to report.
    std::unique_ptr<Preferences> openDefaultPreferences(std::string& /*error*/) override {
        return std::make_unique<MacPreferences>();
    }

    std::string defaultPreferencesDescription() const override {
        return std::string("the user defaults of ") + MacPreferences::kApplicationID;
    }

    void preferencesChanged() override {
        MacNotificationBus(MacNotificationBus::Mode::fromCommandLine)
            .post(ToolRegistry::kPreferencesChanged, std::nullopt);
    }

    std::unique_ptr<PreferenceDomains> openDefaultPreferenceDomains() override {
        return makeMacPreferenceDomains();
    }

    std::unique_ptr<ChildProcesses> makeChildProcesses(Scheduler& scheduler) override {
        return std::make_unique<SpawnedChildProcesses>(scheduler);
    }

    std::unique_ptr<FileSystem> makeFileSystem() override { return makeMacFileSystem(); }

    std::unique_ptr<ProcessFacts> makeProcessFacts() override { return makeMacProcessFacts(); }
};

}  // namespace

std::unique_ptr<CommandHost> makeMacCommandHost() { return std::make_unique<MacCommandHost>(); }

}  // namespace quorvane
