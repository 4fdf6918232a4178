#include "portable/FilePreferences.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>

#include "base/AtomicFile.hpp"
#include "base/Json.hpp"
#include "portable/PreferenceJson.hpp"

namespace quorvane {

namespace {

std::string systemError(int code) {
    return std::strerror(code);
}

// Preferences may hold private text (snippets, history settings), so the file is owner-only.
bool writeAtomically(const std::filesystem::path& path, const std::string& text,
                     std::string& error) {
    std::error_code ec;
    if (path.has_parent_path()) {
        std::filesystem::create_directories(path.parent_path(), ec);
        if (ec) {
            error = "cannot create " + path.parent_path().string() + ": " + ec.message();
            return false;
        }
    }
    return writeFileAtomically(path, text, error);
}

}  // namespace

std::filesystem::path FilePreferences::defaultPath() {
    const char* xdg = std::getenv("XDG_CONFIG_HOME");
    std::filesystem::path base;
    if (xdg != nullptr && std::filesystem::path(xdg).is_absolute()) {
        base = xdg;
    } else {
        const char* home = std::getenv("HOME");
        base = std::filesystem::path(home != nullptr ? home : ".") / ".config";
    }
    return base / "quorvane" / "preferences.json";
}

std::unique_ptr<FilePreferences> FilePreferences::open(const std::filesystem::path& path,
                                                       std::string& error) {
    std::error_code ec;
    if (!std::filesystem::exists(path, ec)) {
        if (ec) {
            error = "cannot read " + path.string() + ": " + ec.message();
            return nullptr;
        }
        return std::unique_ptr<FilePreferences>(new FilePreferences(path, MemoryPreferences{}));
    }
    std::ifstream in(path, std::ios::binary);
    std::ostringstream buffer;
    if (!in || !(buffer << in.rdbuf())) {
        // An empty file also lands here: rdbuf extraction of nothing sets failbit.
        if (in && std::filesystem::file_size(path, ec) == 0 && !ec) {
            error = path.string() + " is not a preferences file: it is empty; it was left as it is";
        } else {
            error = "cannot read " + path.string() + ": " + systemError(errno);
        }
        return nullptr;
    }
    const std::string text = buffer.str();
    const std::string refusal = path.string() + " is not a preferences file: ";
    const std::string untouched = "; it was left as it is";
    JsonError parseError;
    const auto json = Json::parse(text, &parseError);
    if (!json) {
        error = refusal + "at byte " + std::to_string(parseError.offset) + ", " +
                parseError.message + untouched;
        return nullptr;
    }
    if (json->object() == nullptr) {
        error = refusal + "it does not hold a JSON object" + untouched;
        return nullptr;
    }
    MemoryPreferences::Values values;
    for (const auto& [key, element] : *json->object()) {
        auto decoded = PreferenceJson::decode(element);
        if (!decoded) {
            error = refusal + "the value of \"" + key + "\" is not a preference value" + untouched;
            return nullptr;
        }
        values.emplace(key, std::move(*decoded));
    }
    return std::unique_ptr<FilePreferences>(
        new FilePreferences(path, MemoryPreferences(std::move(values))));
}

FilePreferences::FilePreferences(std::filesystem::path path, MemoryPreferences values)
    : path_(std::move(path)), values_(std::move(values)) {}

std::optional<PreferenceValue> FilePreferences::object(std::string_view key) const {
    return values_.object(key);
}

void FilePreferences::set(std::string_view key, PreferenceValue value) {
    values_.set(key, std::move(value));
    save();
}

void FilePreferences::remove(std::string_view key) {
    values_.remove(key);
    save();
}

void FilePreferences::save() {
    Json document = Json::emptyObject();
    for (const auto& [key, value] : values_.values()) {
        document.set(key, PreferenceJson::encode(value));
    }
    std::string error;
    if (writeAtomically(path_, document.serialize(Json::Layout::pretty) + "\n", error)) {
        lastError_.clear();
    } else {
        lastError_ = error;
    }
}

}  // namespace quorvane
