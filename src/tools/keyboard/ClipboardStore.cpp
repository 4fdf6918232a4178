#include "tools/keyboard/ClipboardStore.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "base/AtomicFile.hpp"
#include "base/Json.hpp"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

// The history may hold many large copies; the general reader's bound is for settings files.
constexpr JsonLimits kHistoryLimits{.maxDepth = 8, .maxBytes = std::size_t{1} << 31};

std::optional<std::string> readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) {
        return std::nullopt;
    }
    return bytes;
}

}  // namespace

fs::path ClipboardStore::defaultFolder() {
    const char* home = std::getenv("HOME");
    const fs::path homePath = home != nullptr && *home != '\0' ? fs::path(home) : fs::path("/");
#ifdef __APPLE__
    return homePath / "Library" / "Application Support" / "Quorvane" / "Clipboard";
#else
    const char* data = std::getenv("XDG_DATA_HOME");
    // XDG base directory rules: a relative value is to be ignored.
    if (data != nullptr && *data == '/') {
        return fs::path(data) / "quorvane" / "Clipboard";
    }
    return homePath / ".local" / "share" / "quorvane" / "Clipboard";
#endif
}

fs::path ClipboardStore::imagePath(const Uuid& id) const {
    return folder_ / kImagesFolder / id.text();
}

bool ClipboardStore::makeFolder(const fs::path& path) {
    std::error_code error;
    if (fs::is_directory(path, error)) {
        return true;
    }
    if (path.has_parent_path() && path.parent_path() != path && !makeFolder(path.parent_path())) {
        return false;
    }
    if (::mkdir(path.c_str(), 0700) != 0 && errno != EEXIST) {
        return false;
    }
    // mkdir's mode passes through the umask, which may only take bits away; this puts the
    // exact mode regardless.
    return ::chmod(path.c_str(), 0700) == 0 || fs::is_directory(path, error);
}

bool ClipboardStore::writeAtomically(const fs::path& path, std::string_view bytes) {
    if (!makeFolder(path.parent_path())) {
        return false;
    }
    std::string error;
    return writeFileAtomically(path, bytes, error);
}

std::optional<ClipboardHistory::Items> ClipboardStore::parse(std::string_view text) {
    const auto json = Json::parse(text, nullptr, kHistoryLimits);
    if (!json || !json->array()) {
        return std::nullopt;
    }
    ClipboardHistory::Items items;
    for (const Json& element : *json->array()) {
        auto item = ClipItem::fromJson(element);
        if (!item) {
            return std::nullopt;
        }
        items.push_back(std::move(*item));
    }
    return items;
}

std::optional<ClipboardHistory::Items> ClipboardStore::read() const {
    std::error_code error;
    if (!fs::exists(historyPath(), error)) {
        return ClipboardHistory::Items{};
    }
    const auto text = readFile(historyPath());
    return text ? parse(*text) : std::nullopt;
}

ClipboardStore::Loaded ClipboardStore::load() const {
    Loaded loaded;
    if (auto items = read()) {
        loaded.items = std::move(*items);
        return loaded;
    }
    const fs::path path = historyPath();
    std::error_code error;
    for (int n = 1;; ++n) {
        fs::path aside = path;
        aside += ".corrupt-" + std::to_string(n);
        if (!fs::exists(aside, error)) {
            fs::rename(path, aside, error);
            if (!error) {
                loaded.setAside = aside;
            }
            break;
        }
    }
    return loaded;
}

bool ClipboardStore::save(const ClipboardHistory::Items& items) const {
    std::string text = "[";
    bool first = true;
    for (const ClipItem& item : items) {
        if (!first) {
            text += ',';
        }
        first = false;
        text += item.toJson().serialize();
    }
    text += "]";
    return writeAtomically(historyPath(), text);
}

bool ClipboardStore::writeImage(const Uuid& id, const std::vector<std::uint8_t>& bytes) const {
    return makeFolder(folder_ / kImagesFolder) &&
           writeAtomically(
               imagePath(id),
               std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

std::optional<std::vector<std::uint8_t>> ClipboardStore::readImage(const Uuid& id) const {
    const auto bytes = readFile(imagePath(id));
    if (!bytes) {
        return std::nullopt;
    }
    return std::vector<std::uint8_t>(bytes->begin(), bytes->end());
}

void ClipboardStore::deleteImage(const Uuid& id) const {
    std::error_code ignored;
    fs::remove(imagePath(id), ignored);
}

void ClipboardStore::removeOrphanImages(const std::set<Uuid>& keep) const {
    std::error_code error;
    for (fs::directory_iterator it(folder_ / kImagesFolder, error), end; !error && it != end;
         it.increment(error)) {
        const std::string name = it->path().filename().string();
        const auto id = Uuid::parse(name);
        if (!(id && id->text() == name && keep.contains(*id))) {
            std::error_code ignored;
            fs::remove(it->path(), ignored);
        }
    }
}

void ClipboardStore::prune(const std::set<Uuid>& keep) const {
    std::error_code ignored;
    fs::remove(historyPath(), ignored);
    removeOrphanImages(keep);
}

}  // namespace quorvane
