#include "cli/SnippetsCommand.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <ostream>
#include <set>

#include "base/AtomicFile.hpp"
#include "platform/Preferences.hpp"
#include "tools/keyboard/SnippetConflicts.hpp"
#include "tools/keyboard/SnippetStore.hpp"

namespace quorvane {

namespace {

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

// One line per snippet, so a text's own line breaks are shown as \n.
std::string oneLine(const std::string& text) {
    std::string line;
    for (const char c : text) {
        if (c == '\n') {
            line += "\\n";
        } else if (c == '\t') {
            line += "\\t";
        } else {
            line += c;
        }
    }
    return line;
}

std::size_t displayWidth(const std::string& text) {
    return Snippet::characterCount(text);
}

// Nothing, with `error` set, when something is stored that cannot be read: changing the list
// then would replace what the user has with the starting snippets.
std::optional<std::vector<Snippet>> stored(const Preferences& preferences, std::string& error) {
    auto loaded = SnippetStore::load(preferences);
    if (!loaded.readable) {
        error = std::string("the saved snippets (") + SnippetStore::kKey +
                ") cannot be read; fix or remove them first";
        return std::nullopt;
    }
    return std::move(loaded.snippets);
}

bool save(Preferences& preferences, const std::vector<Snippet>& snippets, std::string& error) {
    SnippetStore::save(preferences, snippets);
    error = preferences.lastError();
    return error.empty();
}

void list(const std::vector<Snippet>& snippets, bool json, std::ostream& out) {
    if (json) {
        out << Snippet::listToJson(snippets).serialize(Json::Layout::pretty) << "\n";
        return;
    }
    std::size_t width = 0;
    for (const auto& snippet : snippets) {
        width = std::max(width, displayWidth(snippet.trigger));
    }
    const auto warnings = SnippetConflicts::warnings(snippets);
    for (std::size_t i = 0; i < snippets.size(); ++i) {
        const Snippet& snippet = snippets[i];
        out << snippet.trigger << std::string(width + 2 - displayWidth(snippet.trigger), ' ')
            << oneLine(snippet.text) << "\n";
        if (!snippet.isUsable()) {
            out << "    ! never fires: a code needs at least two characters and some text\n";
        } else if (!warnings[i].empty()) {
            out << "    ! " << warnings[i] << "\n";
        }
    }
}

// Written beside the destination under a temporary name, then renamed, so an interrupted
// export never leaves half a file where a good one was.
bool writeFile(const std::string& path, const std::string& text, std::string& error) {
    // Snippets often hold private text: addresses, signatures.
    return writeFileAtomically(path, text, error);
}

bool import(Preferences& preferences, std::vector<Snippet> snippets, const std::string& path,
            std::ostream& out, std::string& error) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = "cannot read " + path + ": " + std::strerror(errno);
        return false;
    }
    const std::string text((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    if (file.bad()) {
        error = "cannot read " + path;
        return false;
    }
    std::string why;
    const auto incoming = SnippetStore::decode(text, &why);
    if (!incoming) {
        error = path + " is not a snippets file: " + why;
        return false;
    }
    std::set<std::string> triggers;
    std::set<Uuid> ids;
    for (const auto& snippet : snippets) {
        triggers.insert(snippet.trigger);
        ids.insert(snippet.id);
    }
    std::vector<std::string> skipped;
    std::size_t added = 0;
    for (Snippet snippet : *incoming) {
        if (!triggers.insert(snippet.trigger).second) {
            skipped.push_back(snippet.trigger);
            continue;
        }
        // The same snippet imported under a new code, or a file made by hand with copied ids.
        while (!ids.insert(snippet.id).second) {
            snippet.id = Uuid::random();
        }
        snippets.push_back(std::move(snippet));
        ++added;
    }
    if (added > 0 && !save(preferences, snippets, error)) {
        return false;
    }
    out << "Imported " << added << (added == 1 ? " snippet" : " snippets") << ".\n";
    if (!skipped.empty()) {
        out << "Skipped " << skipped.size() << " whose code is already used:";
        for (const auto& trigger : skipped) {
            out << " " << trigger;
        }
        out << "\n";
    }
    return true;
}

}  // namespace

bool SnippetsCommand::checkShape(const std::vector<std::string>& operands, std::string& error) {
    const std::string verb = operands.empty() ? "" : operands[0];
    const std::size_t count = operands.size();
    const bool ok = (verb == "list" && (count == 1 || (count == 2 && operands[1] == "--json"))) ||
                    (verb == "add" && count == 3) || (verb == "remove" && count == 2) ||
                    ((verb == "export" || verb == "import") && count == 2);
    if (!ok) {
        error =
            "usage: quorvane snippets list [--json] | add CODE TEXT | remove CODE | "
            "export FILE | import FILE";
    }
    return ok;
}

bool SnippetsCommand::run(Preferences& preferences, const std::vector<std::string>& operands,
                          std::ostream& out, std::string& error) {
    if (!checkShape(operands, error)) {
        return false;
    }
    auto snippets = stored(preferences, error);
    if (!snippets) {
        return false;
    }
    const std::string& verb = operands[0];
    if (verb == "list") {
        list(*snippets, operands.size() == 2, out);
        return true;
    }
    if (verb == "export") {
        if (!writeFile(operands[1],
                       Snippet::listToJson(*snippets).serialize(Json::Layout::pretty) + "\n",
                       error)) {
            return false;
        }
        out << "Exported " << snippets->size() << (snippets->size() == 1 ? " snippet" : " snippets")
            << " to " << operands[1] << ".\n";
        return true;
    }
    if (verb == "import") {
        return import(preferences, std::move(*snippets), operands[1], out, error);
    }
    const std::string& trigger = operands[1];
    if (verb == "remove") {
        const auto removed = std::erase_if(
            *snippets, [&](const Snippet& snippet) { return snippet.trigger == trigger; });
        if (removed == 0) {
            error = "there is no snippet with the code " + quoted(trigger);
            return false;
        }
        return save(preferences, *snippets, error);
    }
    for (const auto& snippet : *snippets) {
        if (snippet.trigger == trigger) {
            error = "there is already a snippet with the code " + quoted(trigger);
            return false;
        }
    }
    snippets->push_back({Uuid::random(), trigger, operands[2]});
    if (!save(preferences, *snippets, error)) {
        return false;
    }
    const Snippet& added = snippets->back();
    if (!added.isUsable()) {
        out << "It never fires: a code needs at least two characters and some text.\n";
    } else if (const auto warning = SnippetConflicts::warnings(*snippets).back();
               !warning.empty()) {
        out << warning << "\n";
    }
    return true;
}

std::string SnippetsCommand::usage() {
    return "  snippets list [--json]     the text snippets, in order (--json: as exported)\n"
           "  snippets add CODE TEXT     add a snippet at the end of the list\n"
           "  snippets remove CODE       remove the snippet with this code\n"
           "  snippets export FILE       write every snippet to a JSON file\n"
           "  snippets import FILE       add the snippets of a JSON file whose codes are new\n";
}

}  // namespace quorvane
