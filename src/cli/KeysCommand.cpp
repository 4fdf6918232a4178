#include "cli/KeysCommand.hpp"

#include <ostream>
#include <stdexcept>

#include "app/ToolCatalog.hpp"
#include "tools/keyboard/HidutilCommand.hpp"
#include "tools/keyboard/KeyRemapTool.hpp"

namespace quorvane {

namespace {

struct Refusal : std::runtime_error {
    using std::runtime_error::runtime_error;
};

const ToolDescriptor& keyRemapDescriptor() {
    for (const auto& descriptor : ToolCatalog::descriptors()) {
        if (descriptor.identity.id == "key-remap") {
            return descriptor;
        }
    }
    throw Refusal("this version of Quorvane has no key remapping");
}

Key parseKey(const std::string& name) {
    if (const auto key = keyFromRawValue(name)) {
        return *key;
    }
    std::string names;
    for (const auto& key : allKeys()) {
        names += (names.empty() ? "" : ", ") + std::string(key.name);
    }
    throw Refusal("unknown key \"" + name + "\"; the keys are " + names);
}

std::string describe(const Mapping& mapping) {
    return std::string(rawValue(mapping.from)) + " → " + std::string(rawValue(mapping.to)) +
           " on " + std::string(title(mapping.keyboards)) + " (" +
           std::string(label(mapping.from)) + " → " + std::string(label(mapping.to)) + ")";
}

void show(KeyRemapTool& tool, std::ostream& out) {
    if (tool.mappings().empty()) {
        out << "No keys remapped.\n";
    }
    for (const auto& mapping : tool.mappings()) {
        out << describe(mapping) << "\n";
    }
    const auto calls = tool.plannedCalls(tool.mappings());
    if (!calls) {
        out << "\nNothing runs: no keys are remapped, and no table of Quorvane's "
               "is set.\n";
        return;
    }
    const char* kinds[] = {"MacBook keyboard", "Plugged-in keyboards"};
    for (std::size_t i = 0; i < calls->size(); ++i) {
        out << "\n" << kinds[i] << ":\n  " << HidutilCommand::commandLine((*calls)[i]) << "\n";
    }
}

void presets(std::ostream& out) {
    for (const auto& preset : Preset::all()) {
        out << preset.title << " (" << title(preset.keyboards) << ")\n";
        for (const auto& [from, to] : preset.mappings) {
            out << "  " << rawValue(from) << " → " << rawValue(to) << "\n";
        }
    }
}

}  // namespace

bool KeysCommand::wellFormed(const std::vector<std::string>& operands) {
    if (operands.empty()) {
        return false;
    }
    const std::string& verb = operands[0];
    if (verb == "show" || verb == "presets") {
        return operands.size() == 1;
    }
    if (verb == "remove") {
        return operands.size() == 2;
    }
    if (verb == "add") {
        return operands.size() == 3 ||
               (operands.size() == 4 && operands[3].starts_with("--keyboards=")) ||
               (operands.size() == 5 && operands[3] == "--keyboards");
    }
    return false;
}

std::string KeysCommand::shape() {
    return "show | presets | add FROM TO [--keyboards all|external|builtIn] | "
           "remove FROM";
}

bool KeysCommand::run(const std::vector<std::string>& operands, const Platform& platform,
                      std::ostream& out, std::string& error) {
    try {
        const std::string& verb = operands.at(0);
        if (verb == "presets") {
            presets(out);
            return true;
        }
        KeyRemapTool tool(keyRemapDescriptor(), platform);
        if (verb == "show") {
            show(tool, out);
        } else if (verb == "add") {
            const Key from = parseKey(operands[1]);
            const Key to = parseKey(operands[2]);
            Keyboards keyboards = Keyboards::all;
            if (operands.size() > 3) {
                const std::string name =
                    operands.size() == 5 ? operands[4] : operands[3].substr(12);
                const auto chosen = keyboardsFromRawValue(name);
                if (!chosen) {
                    throw Refusal("--keyboards takes all, external or builtIn, not \"" + name +
                                  "\"");
                }
                keyboards = *chosen;
            }
            tool.add(from, to, keyboards);
            out << "Added " << describe(tool.mappings().back()) << ".\n";
        } else if (verb == "remove") {
            const Key from = parseKey(operands[1]);
            auto kept = tool.mappings();
            if (std::erase_if(kept, [&](const Mapping& m) { return m.from == from; }) == 0) {
                throw Refusal("no mapping from " + std::string(rawValue(from)) +
                              " (run 'quorvane keys show' for the list)");
            }
            tool.setMappings(std::move(kept));
            out << "Removed the mappings from " << rawValue(from) << ".\n";
        }
        return true;
    } catch (const Refusal& refusal) {
        error = refusal.what();
        return false;
    }
}

std::string KeysCommand::usage() {
    return "  keys show                  the remapped keys and the hidutil calls "
           "that set them\n"
           "  keys presets               the ready-made sets of remappings\n"
           "  keys add FROM TO [--keyboards all|external|builtIn]\n"
           "                             remap a key (names as in 'quorvane keys "
           "show')\n"
           "  keys remove FROM           stop remapping a key\n";
}

}  // namespace quorvane
