#include "support/FakePlatform.hpp"

namespace quorvane {

FakePlatform::FakePlatform() = default;
FakePlatform::~FakePlatform() = default;

Platform FakePlatform::platform() {
    return {preferences,
            scheduler,
            permissionProbe,
            workspace,
            notifications,
            events,
            hotKeys,
            accessibility,
            eventMonitors,
            screens,
            menuBar,
            audioHardware,
            processFacts,
            input,
            keyboardLayout,
            windowList,
            preferenceDomains,
            childProcesses,
            hidEventServices,
            pasteboard,
            thumbnails,
            hashing,
            dateFormatting,
            displayConfiguration,
            systemLog,
            power,
            fileSystem,
            *archives,
            finderExtension,
            screenCapture,
            textRecognition,
            colorSampler,
            firmwareVariables,
            fileIcons,
            defaultApplications,
            hostStatistics,
            userCalendar,
            calendarEvents,
            displayControl,
            powerSources,
            chargingHelper,
            diskArbitration,
            hidBatteries};
}

}  // namespace quorvane
