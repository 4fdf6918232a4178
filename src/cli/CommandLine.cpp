#include "cli/CommandLine.hpp"

#include <algorithm>
#include <optional>
#include <ostream>
#include <stdexcept>

#include "app/PermissionCenter.hpp"
#include "app/ToolCatalog.hpp"
#include "app/ToolRegistry.hpp"
#include "base/Json.hpp"
#include "cli/ArchiveCommand.hpp"
#include "cli/ClipboardCommand.hpp"
#include "cli/CommandHost.hpp"
#include "cli/DormantTool.hpp"
#include "cli/EqCommand.hpp"
#include "cli/KeysCommand.hpp"
#include "cli/LayoutsCommand.hpp"
#include "cli/SettingsTextRenderer.hpp"
#include "cli/SnippetsCommand.hpp"
#include "cli/SpaceCommand.hpp"
#include "cli/UninstallScanCommand.hpp"
#include "input/InputServices.hpp"
#include "platform/Archives.hpp"
#include "platform/ChildProcesses.hpp"
#include "platform/FileSystem.hpp"
#include "platform/Platform.hpp"
#include "platform/PreferenceDomains.hpp"
#include "platform/Preferences.hpp"
#include "portable/FilePreferenceDomains.hpp"
#include "portable/FilePreferences.hpp"
#include "portable/InProcessNotificationBus.hpp"
#include "portable/MemoryPasteboard.hpp"
#include "portable/NoChildProcesses.hpp"
#include "portable/NoColorSampler.hpp"
#include "portable/NoScreenCapture.hpp"
#include "portable/NoTextRecognition.hpp"
#include "portable/PortableAccessibility.hpp"
#include "portable/PortableAudioHardware.hpp"
#include "portable/PortableCalendarEvents.hpp"
#include "portable/PortableChargingHelper.hpp"
#include "portable/PortableDateFormatting.hpp"
#include "portable/PortableDefaultApplications.hpp"
#include "portable/PortableDiskArbitration.hpp"
#include "portable/PortableDisplayConfiguration.hpp"
#include "portable/PortableDisplayControl.hpp"
#include "portable/PortableEventMonitors.hpp"
#include "portable/PortableEventSystem.hpp"
#include "portable/PortableFileIcons.hpp"
#include "portable/PortableFinderExtensionChannel.hpp"
#include "portable/PortableFirmwareVariables.hpp"
#include "portable/PortableHIDBatteries.hpp"
#include "portable/PortableHIDEventServices.hpp"
#include "portable/PortableHashing.hpp"
#include "portable/PortableHostStatistics.hpp"
#include "portable/PortableHotKeySystem.hpp"
#include "portable/PortableKeyboardLayout.hpp"
#include "portable/PortableMenuBar.hpp"
#include "portable/PortablePermissionProbe.hpp"
#include "portable/PortablePowerManagement.hpp"
#include "portable/PortablePowerSources.hpp"
#include "portable/PortableProcessFacts.hpp"
#include "portable/PortableScreens.hpp"
#include "portable/PortableSystemLog.hpp"
#include "portable/PortableThumbnails.hpp"
#include "portable/PortableUserCalendar.hpp"
#include "portable/PortableWindowList.hpp"
#include "portable/PortableWorkspace.hpp"
#include "portable/PosixFileSystem.hpp"
#include "portable/SteadyScheduler.hpp"
#include "portable/SystemArchives.hpp"
#include "tools/keyboard/ClipboardStore.hpp"
#include "ui/SettingsRowEditor.hpp"

#ifndef QUORVANE_VERSION
#define QUORVANE_VERSION "0.0.0"
#endif

namespace quorvane {

namespace {

// A refusal: printed as one line, exit status 2.
struct CommandError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::size_t displayWidth(const std::string& text) {
    // Code points, not bytes: names such as "Hold ⌘Q to Quit" hold multi-byte characters.
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

std::string padded(const std::string& text, std::size_t width) {
    const std::size_t shown = displayWidth(text);
    return text + std::string(width > shown ? width - shown : 0, ' ');
}

std::string quoted(const std::string& id) {
    return "\"" + id + "\"";
}

// Everything one run of the command works with.
struct Session {
    std::unique_ptr<Preferences> preferences;
    SteadyScheduler scheduler;
    PortablePermissionProbe probe;
    PortableWorkspace workspace;
    InProcessNotificationBus notifications;
    PortableEventSystem events;
    PortableHotKeySystem hotKeys;
    PortableAccessibility accessibility;
    PortableEventMonitors eventMonitors;
    PortableScreens screens;
    PortableMenuBar menuBar;
    PortableAudioHardware audioHardware;
    PortableProcessFacts processFacts;
    InputServices input{hotKeys, screens, scheduler};
    PortableKeyboardLayout keyboardLayout;
    PortableWindowList windowList;
    std::unique_ptr<PreferenceDomains> preferenceDomains;
    std::unique_ptr<ChildProcesses> childProcesses;
    PortableHIDEventServices hidEventServices;
    MemoryPasteboard pasteboard;
    PortableThumbnails thumbnails;
    PortableHashing hashing;
    std::optional<Platform> platform;
    PortableDateFormatting dateFormatting;
    PortableDisplayConfiguration displayConfiguration;
    PortableSystemLog systemLog;
    PortablePowerManagement power;
    std::unique_ptr<FileSystem> fileSystem;
    std::unique_ptr<Archives> archives = makeSystemArchives();
    PortableFinderExtensionChannel finderExtension;
    NoScreenCapture screenCapture;
    NoTextRecognition textRecognition;
    NoColorSampler colorSampler;
    PortableFirmwareVariables firmwareVariables;
    PortableFileIcons fileIcons;
    PortableDefaultApplications defaultApplications;
    PortableHostStatistics hostStatistics;
    PortableUserCalendar userCalendar;
    PortableCalendarEvents calendarEvents;
    PortableDisplayControl displayControl;
    PortablePowerSources powerSources;
    PortableChargingHelper chargingHelper;
    PortableDiskArbitration diskArbitration;
    PortableHIDBatteries hidBatteries;
    std::unique_ptr<PermissionCenter> permissions;
    std::unique_ptr<ToolRegistry> registry;
};

class Run {
public:
    Run(CommandHost& host, const CommandLine::ToolFactory& makeTools, std::ostream& out)
        : host_(host), makeTools_(makeTools), out_(out) {}

    int execute(std::vector<std::string> args) {
        std::string prefsPath;
        bool usePrefsFile = false;
        std::vector<std::string> rest;
        for (std::size_t i = 0; i < args.size(); ++i) {
            const std::string& arg = args[i];
            if (arg == "--help" || arg == "-h") {
                out_ << CommandLine::usage() << "\nWithout --prefs the command uses "
                     << host_.defaultPreferencesDescription() << ".\n";
                return 0;
            }
            if (arg == "--version") {
                out_ << "quorvane " << QUORVANE_VERSION << "\n";
                return 0;
            }
            if (arg == "--prefs" || arg.starts_with("--prefs=")) {
                if (arg == "--prefs") {
                    if (i + 1 >= args.size()) {
                        throw CommandError("--prefs needs a file");
                    }
                    prefsPath = args[++i];
                } else {
                    prefsPath = arg.substr(8);
                }
                if (prefsPath.empty()) {
                    throw CommandError("--prefs needs a file");
                }
                usePrefsFile = true;
                continue;
            }
            rest.push_back(arg);
        }
        if (rest.empty()) {
            throw CommandError("no command given (try 'quorvane --help')");
        }
        const std::string command = rest.front();
        const std::vector<std::string> operands(rest.begin() + 1, rest.end());
        if (command == "eq") {
            std::string error;
            if (!EqCommand::run(operands, out_, error)) {
                throw CommandError(error);
            }
            return 0;
        }
        if (command == "clipboard") {
            std::string error;
            if (!ClipboardCommand::run(operands, ClipboardStore::defaultFolder(), out_, error)) {
                throw CommandError(error);
            }
            return 0;
        }
        if (command == "space" || command == "uninstall-scan" || command == "archive") {
            runFileCommand(command, operands);
            return 0;
        }
        checkShape(command, operands);
        openSession(usePrefsFile, prefsPath);

        if (command == "tools") {
            listTools(!operands.empty());
        } else if (command == "search") {
            search(operands);
        } else if (command == "enable" || command == "disable") {
            switchTool(availableTool(operands[0]), command == "enable");
        } else if (command == "controls") {
            controls(operands);
        } else if (command == "settings" && operands.size() == 1) {
            settings(availableTool(operands[0]));
        } else if (command == "settings") {
            std::string error;
            const SettingsPage page = availableTool(operands[0]).settingsPage();
            if (!SettingsRowEditor::set(page, operands[2], operands[3], error)) {
                throw CommandError(operands[0] + ": " + error);
            }
        } else if (command == "keys") {
            std::string error;
            if (!KeysCommand::run(operands, *session_.platform, out_, error)) {
                throw CommandError(error);
            }
        } else if (command == "snippets") {
            std::string error;
            if (!SnippetsCommand::run(*session_.preferences, operands, out_, error)) {
                throw CommandError(error);
            }
        } else if (command == "layouts") {
            std::string error;
            if (!LayoutsCommand::run(*session_.preferences, operands, out_, error)) {
                throw CommandError(error);
            }
        }
        if (const auto error = session_.preferences->lastError(); !error.empty()) {
            throw CommandError(error);
        }
        return 0;
    }

private:
    // Refuses a malformed command before anything is opened.
    static void checkShape(const std::string& command, const std::vector<std::string>& operands) {
        const auto expect = [&](bool ok, const std::string& what) {
            if (!ok) {
                throw CommandError("usage: quorvane " + command + " " + what);
            }
        };
        if (command == "tools") {
            expect(operands.empty() || (operands.size() == 1 && operands[0] == "--json"),
                   "[--json]");
        } else if (command == "search") {
            expect(!operands.empty(), "WORD…");
        } else if (command == "enable" || command == "disable") {
            expect(operands.size() == 1, "ID");
        } else if (command == "settings") {
            expect(operands.size() == 1 || (operands.size() == 4 && operands[1] == "set"),
                   "ID [set LABEL VALUE]");
        } else if (command == "controls") {
            expect(operands.empty() ||
                       (operands.size() == 2 && (operands[0] == "add" || operands[0] == "remove")),
                   "[add ID | remove ID]");
        } else if (command == "keys") {
            expect(KeysCommand::wellFormed(operands), KeysCommand::shape());
        } else if (command == "snippets") {
            std::string error;
            if (!SnippetsCommand::checkShape(operands, error)) {
                throw CommandError(error);
            }
        } else if (command == "layouts") {
            std::string error;
            if (!LayoutsCommand::checkShape(operands, error)) {
                throw CommandError(error);
            }
        } else {
            throw CommandError("unknown command " + quoted(command) + " (try 'quorvane --help')");
        }
    }

    std::unique_ptr<FileSystem> makeFileSystem() {
        auto fileSystem = host_.makeFileSystem();
        if (!fileSystem) {
            fileSystem = std::make_unique<PosixFileSystem>();
        }
        return fileSystem;
    }

    // The file commands read the file system only, so a damaged preferences file does not stop
    // them.
    void runFileCommand(const std::string& command, const std::vector<std::string>& operands) {
        const auto fileSystem = makeFileSystem();
        std::unique_ptr<ProcessFacts> facts = host_.makeProcessFacts();
        if (!facts) {
            facts = std::make_unique<PortableProcessFacts>();
        }
        std::string error;
        bool done = false;
        if (command == "space") {
            done = SpaceCommand::run(operands, *fileSystem, out_, error);
        } else if (command == "uninstall-scan") {
            done = UninstallScanCommand::run(operands, *fileSystem, *facts, out_, error);
        } else {
            done = ArchiveCommand::run(operands, *session_.archives, out_, error);
        }
        if (!done) {
            throw CommandError(error);
        }
    }

    void openSession(bool usePrefsFile, const std::string& prefsPath) {
        std::string error;
        session_.preferences = usePrefsFile ? FilePreferences::open(prefsPath, error)
                                            : host_.openDefaultPreferences(error);
        if (!session_.preferences) {
            throw CommandError(error);
        }
        openForeignDomains(usePrefsFile);
        session_.fileSystem = makeFileSystem();
        Platform platform{*session_.preferences,
                          session_.scheduler,
                          session_.probe,
                          session_.workspace,
                          session_.notifications,
                          session_.events,
                          session_.hotKeys,
                          session_.accessibility,
                          session_.eventMonitors,
                          session_.screens,
                          session_.menuBar,
                          session_.audioHardware,
                          session_.processFacts,
                          session_.input,
                          session_.keyboardLayout,
                          session_.windowList,
                          *session_.preferenceDomains,
                          *session_.childProcesses,
                          session_.hidEventServices,
                          session_.pasteboard,
                          session_.thumbnails,
                          session_.hashing,
                          session_.dateFormatting,
                          session_.displayConfiguration,
                          session_.systemLog,
                          session_.power,
                          *session_.fileSystem,
                          *session_.archives,
                          session_.finderExtension,
                          session_.screenCapture,
                          session_.textRecognition,
                          session_.colorSampler,
                          session_.firmwareVariables,
                          session_.fileIcons,
                          session_.defaultApplications,
                          session_.hostStatistics,
                          session_.userCalendar,
                          session_.calendarEvents,
                          session_.displayControl,
                          session_.powerSources,
                          session_.chargingHelper,
                          session_.diskArbitration,
                          session_.hidBatteries};
        session_.platform.emplace(platform);
        session_.permissions = std::make_unique<PermissionCenter>(
            session_.probe, session_.scheduler, session_.workspace);
        std::vector<std::unique_ptr<Tool>> tools;
        for (auto& tool : makeTools_ ? makeTools_(platform) : ToolCatalog::makeTools(platform)) {
            tools.push_back(std::make_unique<DormantTool>(std::move(tool)));
        }
        session_.registry = std::make_unique<ToolRegistry>(
            std::move(tools), *session_.permissions, *session_.preferences, session_.notifications);
    }

    // A store of our own (--prefs, or files where the system has no user defaults) keeps the
    // other programs' domains as files beside it and runs no programs: nothing on this system
    // reads those files, so there is nothing to restart.
    void openForeignDomains(bool usePrefsFile) {
        if (!usePrefsFile) {
            session_.preferenceDomains = host_.openDefaultPreferenceDomains();
            session_.childProcesses = host_.makeChildProcesses(session_.scheduler);
        }
        if (!session_.preferenceDomains) {
            const auto* file = dynamic_cast<const FilePreferences*>(session_.preferences.get());
            session_.preferenceDomains = std::make_unique<FilePreferenceDomains>(
                file != nullptr ? file->path().parent_path() : std::filesystem::path("."));
        }
        if (!session_.childProcesses) {
            session_.childProcesses = std::make_unique<NoChildProcesses>(session_.scheduler);
        }
    }

    Tool& knownTool(const std::string& id) {
        Tool* tool = session_.registry->tool(id);
        if (tool == nullptr) {
            throw CommandError("there is no tool with the id " + quoted(id) +
                               " (run 'quorvane tools' for the list)");
        }
        return *tool;
    }

    Tool& availableTool(const std::string& id) {
        Tool& tool = knownTool(id);
        if (!tool.isAvailable()) {
            throw CommandError(quoted(id) + " (" + tool.name() +
                               ") is not available in this version of Quorvane");
        }
        return tool;
    }

    bool enabled(const Tool& tool) const {
        return session_.registry->enabledIDs().contains(tool.id());
    }

    void listTools(bool json) {
        const auto& tools = session_.registry->tools();
        if (json) {
            Json list = Json::emptyArray();
            for (const auto& tool : tools) {
                Json permissions = Json::emptyArray();
                for (const auto permission : tool->requiredPermissions()) {
                    permissions.push(Json(std::string(rawValue(permission))));
                }
                Json entry = Json::emptyObject();
                entry.set("id", Json(tool->id()));
                entry.set("name", Json(tool->name()));
                entry.set("category", Json(std::string(rawValue(tool->category()))));
                entry.set("permissions", std::move(permissions));
                entry.set("enabled", Json(enabled(*tool)));
                entry.set("available", Json(tool->isAvailable()));
                list.push(std::move(entry));
            }
            out_ << list.serialize(Json::Layout::pretty) << "\n";
            return;
        }
        std::size_t idWidth = 0;
        std::size_t nameWidth = 0;
        for (const auto& tool : tools) {
            idWidth = std::max(idWidth, displayWidth(tool->id()));
            nameWidth = std::max(nameWidth, displayWidth(tool->name()));
        }
        for (const auto& tool : tools) {
            out_ << padded(tool->id(), idWidth + 2) << padded(tool->name(), nameWidth + 2)
                 << padded(std::string(title(tool->category())), 18)
                 << (tool->isAvailable() ? (enabled(*tool) ? "on" : "off")
                                         : (enabled(*tool) ? "on, not available" : "not available"))
                 << "\n";
        }
    }

    void search(const std::vector<std::string>& operands) {
        std::vector<std::string> words;
        for (const auto& operand : operands) {
            for (auto& word : ToolRegistry::searchWords(operand)) {
                words.push_back(std::move(word));
            }
        }
        for (const auto& tool : session_.registry->tools()) {
            if (ToolRegistry::matches(*tool, words)) {
                out_ << tool->id() << "\n";
            }
        }
    }

    void switchTool(Tool& tool, bool on) {
        session_.registry->setEnabled(on, tool, false);
        // A change to another program's preferences that failed is switched back, so the store
        // says what is really in force.
        const auto* dormant = dynamic_cast<const DormantTool*>(&tool);
        const auto* flip = dormant != nullptr ? dormant->flipTool() : nullptr;
        if (flip != nullptr && !flip->lastError().empty()) {
            const std::string problem = flip->lastError();
            session_.registry->setEnabled(!on, tool, false);
            throw CommandError(problem);
        }
        host_.preferencesChanged();
        out_ << tool.name() << " is " << (on ? "on" : "off") << ".\n";
        if (on) {
            for (const auto permission : tool.requiredPermissions()) {
                if (permission != Permission::systemAudioRecording) {
                    out_ << "It works once Quorvane has the " << title(permission)
                         << " permission.\n";
                }
            }
        }
    }

    void controls(const std::vector<std::string>& operands) {
        if (operands.empty()) {
            for (const auto& id : session_.registry->controlIDs()) {
                out_ << id << "\n";
            }
            return;
        }
        const bool add = operands[0] == "add";
        Tool& tool = availableTool(operands[1]);
        if (add && !tool.control()) {
            throw CommandError(quoted(tool.id()) + " (" + tool.name() +
                               ") has no control for the menu");
        }
        session_.registry->setInControls(add, tool);
        host_.preferencesChanged();
    }

    void settings(Tool& tool) {
        out_ << tool.name() << " (" << tool.id() << "): " << (enabled(tool) ? "on" : "off") << "\n"
             << tool.summary() << "\n";
        if (!tool.requiredPermissions().empty()) {
            std::string needs;
            for (const auto permission : tool.requiredPermissions()) {
                needs += (needs.empty() ? "" : ", ") + std::string(title(permission));
            }
            out_ << "Needs: " << needs << "\n";
        }
        const std::string page = SettingsTextRenderer::render(tool.settingsPage());
        if (!page.empty()) {
            out_ << "\n" << page;
        }
    }

    CommandHost& host_;
    const CommandLine::ToolFactory& makeTools_;
    std::ostream& out_;
    Session session_;
};

}  // namespace

CommandLine::CommandLine(CommandHost& host, ToolFactory makeTools)
    : host_(host), makeTools_(std::move(makeTools)) {}

int CommandLine::run(const std::vector<std::string>& arguments, std::ostream& out,
                     std::ostream& err) {
    try {
        Run run(host_, makeTools_, out);
        return run.execute(arguments);
    } catch (const CommandError& error) {
        err << "quorvane: " << error.what() << "\n";
        return 2;
    }
}

std::string CommandLine::usage() {
    return "usage: quorvane [--prefs FILE] COMMAND\n"
           "\n"
           "Commands:\n"
           "  tools [--json]             every tool, in the order the app starts them\n"
           "  search WORD...             the ids of the tools that match every word\n"
           "  enable ID                  switch a tool on\n"
           "  disable ID                 switch a tool off\n"
           "  controls                   the tools with a tile in the menu, in order\n"
           "  controls add ID            add a tool's tile at the end of the menu's grid\n"
           "  controls remove ID         remove a tool's tile\n"
           "  settings ID                a tool's settings page, as text\n"
           "  settings ID set LABEL VALUE\n"
           "                             change the setting with that label: on/off, an\n"
           "                             option, a number, a text, or +ID/-ID for app lists\n" +
           SnippetsCommand::usage() + EqCommand::usage() + KeysCommand::usage() +
           ClipboardCommand::usage() + LayoutsCommand::usage() + SpaceCommand::usage() +
           UninstallScanCommand::usage() + ArchiveCommand::usage() +
           "\n"
           "Options:\n"
           "  --prefs FILE               use this preferences file instead of Quorvane's own\n"
           "  --help                     show this help\n"
           "  --version                  show the version\n"
           "\n"
           "Errors print one line and exit with status 2; nothing is written then.\n";
}

}  // namespace quorvane
