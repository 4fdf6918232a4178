#include "app/AdministratorCommand.hpp"

#include <utility>

namespace quorvane {

namespace {

// Single quotes keep everything literal in the shell; a single quote itself ends the quoted
// part, is escaped, and starts a new one.
std::string shellQuoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

std::string appleScriptText(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + "\"";
}

}  // namespace

std::vector<std::string> AdministratorCommand::osascriptArguments(
    const std::string& executablePath, const std::vector<std::string>& arguments,
    const std::string& reason) {
    std::string command = shellQuoted(executablePath);
    for (const auto& argument : arguments) {
        command += " " + shellQuoted(argument);
    }
    return {"-e", "do shell script " + appleScriptText(command) + " with prompt " +
                      appleScriptText(reason) + " with administrator privileges"};
}

std::unique_ptr<ChildProcessRun> AdministratorCommand::start(
    ChildProcesses& processes, const std::string& executablePath,
    const std::vector<std::string>& arguments, const std::string& reason,
    ChildProcesses::Completion finished) {
    return processes.start(kOsascript, osascriptArguments(executablePath, arguments, reason),
                           std::move(finished));
}

}  // namespace quorvane
