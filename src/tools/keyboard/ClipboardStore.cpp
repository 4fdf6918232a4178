#include "tools/keyboard/ClipboardStore.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "base/AtomicFile.hpp"
#include "base/MappedFile.hpp"
#include "tools/keyboard/ClipboardHistoryFile.hpp"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

std::optional<std::string> readFile(const fs::path& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               &std::fclose);
    if (!file) {
        return std::nullopt;
    }
    std::error_code error;
    const auto size = fs::file_size(path, error);
    std::string bytes(error ? 0 : static_cast<std::size_t>(size), '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    // A file that grew since its size was taken is still read to its end.
    std::array<char, 65536> more;
    while (const std::size_t got = std::fread(more.data(), 1, more.size(), file.get())) {
        bytes.append(more.data(), got);
    }
    if (std::ferror(file.get()) != 0) {
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
    return ClipboardHistoryFile::decode(text);
}

std::optional<ClipboardHistory::Items> ClipboardStore::read() const {
    std::error_code error;
    if (!fs::exists(historyPath(), error)) {
        return ClipboardHistory::Items{};
    }
    const auto file = MappedFile::open(historyPath());
    return file ? parse(file->bytes()) : std::nullopt;
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
    std::string error;
    return makeFolder(folder_) &&
           writeFileAtomically(
               historyPath(),
               [&items](const ByteSink& sink) { return ClipboardHistoryFile::write(items, sink); },
               error);
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
