#include "tools/keyboard/HidutilCommand.hpp"

namespace quorvane {

std::string HidutilCommand::matching(bool builtIn) {
    return std::string("{\"Built-In\":") + (builtIn ? "true" : "false") +
           ",\"PrimaryUsagePage\":1,\"PrimaryUsage\":6}";
}

std::string HidutilCommand::userKeyMapping(const std::vector<KeyMappingPair>& table) {
    std::string text = "{\"UserKeyMapping\":[";
    bool first = true;
    for (const auto& pair : table) {
        if (!first) {
            text += ",";
        }
        first = false;
        text += "{\"HIDKeyboardModifierMappingSrc\":" + std::to_string(pair.source) +
                ",\"HIDKeyboardModifierMappingDst\":" + std::to_string(pair.destination) + "}";
    }
    return text + "]}";
}

std::vector<std::string> HidutilCommand::arguments(bool builtIn,
                                                   const std::vector<KeyMappingPair>& table) {
    return {"property", "--matching", matching(builtIn), "--set", userKeyMapping(table)};
}

std::vector<KeyMappingPair> HidutilCommand::table(const std::vector<Mapping>& mappings,
                                                  const SystemModifierMappings& system,
                                                  bool builtIn) {
    std::vector<KeyMappingPair> table;
    for (const auto& mapping : mappings) {
        if (covers(mapping.keyboards, builtIn)) {
            table.push_back({hidValue(mapping.from), hidValue(mapping.to)});
        }
    }
    const auto& own = builtIn ? system.builtIn : system.external;
    table.insert(table.end(), own.begin(), own.end());
    return table;
}

std::string HidutilCommand::commandLine(const std::vector<std::string>& arguments) {
    std::string line = kPath;
    for (const auto& argument : arguments) {
        line += " ";
        if (argument.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                       "0123456789-_./") == std::string::npos &&
            !argument.empty()) {
            line += argument;
        } else {
            // Single quotes keep everything literal; a quote inside is closed, escaped, reopened.
            line += "'";
            for (const char c : argument) {
                line += c == '\'' ? std::string("'\\''") : std::string(1, c);
            }
            line += "'";
        }
    }
    return line;
}

}  // namespace quorvane
