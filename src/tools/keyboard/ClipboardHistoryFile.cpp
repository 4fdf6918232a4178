#include "tools/keyboard/ClipboardHistoryFile.hpp"

#include <cstdint>

#include "base/Base64.hpp"
#include "base/JsonReader.hpp"
#include "base/JsonWriter.hpp"

namespace quorvane {

namespace {

// The history may hold many large copies; this bounds what a damaged file can cost.
constexpr std::size_t kMaxBytes = std::size_t{1} << 31;
// Unknown members (from a later version) are skipped, nested at most this deep.
constexpr std::size_t kMaxUnknownDepth = 6;

class ItemWriter {
public:
    explicit ItemWriter(std::string& out) : out_(out) { out_ += '{'; }
    ~ItemWriter() { out_ += '}'; }
    ItemWriter(const ItemWriter&) = delete;
    ItemWriter& operator=(const ItemWriter&) = delete;

    void key(std::string_view name) {
        if (!first_) {
            out_ += ',';
        }
        first_ = false;
        JsonWriter::string(out_, name);
        out_ += ':';
    }
    void string(std::string_view name, const std::optional<std::string>& value) {
        if (value) {
            key(name);
            JsonWriter::string(out_, *value);
        }
    }

private:
    std::string& out_;
    bool first_ = true;
};

void writeItem(std::string& out, const ClipItem& item) {
    // Members in byte order of their names, as every JSON file of Quorvane's is written.
    ItemWriter writer(out);
    writer.string("app", item.app);
    writer.key("date");
    JsonWriter::real(out, item.date);
    if (item.filePaths) {
        writer.key("filePaths");
        out += '[';
        for (std::size_t i = 0; i < item.filePaths->size(); ++i) {
            out += i == 0 ? "" : ",";
            JsonWriter::string(out, (*item.filePaths)[i]);
        }
        out += ']';
    }
    writer.key("id");
    JsonWriter::string(out, item.id.text());
    writer.string("imageHash", item.imageHash);
    writer.string("imageType", item.imageType);
    writer.key("kind");
    JsonWriter::string(out, rawValue(item.kind));
    if (item.rich) {
        writer.key("rich");
        out += '{';
        bool first = true;
        for (const auto& [type, bytes] : *item.rich) {
            out += first ? "" : ",";
            first = false;
            JsonWriter::string(out, type);
            out += ':';
            JsonWriter::string(out, base64::encode(bytes));
        }
        out += '}';
    }
    writer.string("text", item.text);
}

class ItemReader {
public:
    explicit ItemReader(JsonReader& reader) : reader_(reader) {}

    std::optional<ClipItem> read();

private:
    enum Member : unsigned {
        app = 1 << 0,
        date = 1 << 1,
        filePaths = 1 << 2,
        id = 1 << 3,
        imageHash = 1 << 4,
        imageType = 1 << 5,
        kind = 1 << 6,
        rich = 1 << 7,
        text = 1 << 8,
    };

    bool readMember(const std::string& name, ClipItem& item, unsigned& seen);
    bool readOptionalString(std::optional<std::string>& into);
    bool readString(std::string& into);
    bool isNull();
    bool readPaths(std::optional<std::vector<std::string>>& into);
    bool readRich(std::optional<std::map<std::string, std::vector<std::uint8_t>>>& into);

    JsonReader& reader_;
    std::string scratch_;
};

bool ItemReader::isNull() {
    reader_.skipWhitespace();
    return !reader_.atEnd() && reader_.peek() == 'n';
}

bool ItemReader::readString(std::string& into) {
    reader_.skipWhitespace();
    if (reader_.atEnd()) {
        return reader_.failAtEnd();
    }
    if (reader_.peek() != '"') {
        return reader_.fail(reader_.offset(), "expected a string");
    }
    return reader_.readString(into);
}

bool ItemReader::readOptionalString(std::optional<std::string>& into) {
    if (isNull()) {
        return reader_.readLiteral("null");
    }
    return readString(into.emplace());
}

bool ItemReader::readPaths(std::optional<std::vector<std::string>>& into) {
    if (isNull()) {
        return reader_.readLiteral("null");
    }
    if (!reader_.expect('[', "expected an array")) {
        return false;
    }
    auto& paths = into.emplace();
    if (reader_.skip(']')) {
        return true;
    }
    do {
        if (!readString(paths.emplace_back())) {
            return false;
        }
    } while (reader_.skip(','));
    return reader_.expect(']', "expected ',' or ']'");
}

bool ItemReader::readRich(std::optional<std::map<std::string, std::vector<std::uint8_t>>>& into) {
    if (isNull()) {
        return reader_.readLiteral("null");
    }
    if (!reader_.expect('{', "expected an object")) {
        return false;
    }
    auto& map = into.emplace();
    if (reader_.skip('}')) {
        return true;
    }
    do {
        std::string type;
        const std::size_t at = reader_.offset();
        if (!readString(type) || !reader_.expect(':', "expected ':'")) {
            return false;
        }
        scratch_.clear();
        if (!readString(scratch_)) {
            return false;
        }
        auto bytes = base64::decode(scratch_);
        if (!bytes) {
            return reader_.fail(at, "not base64");
        }
        if (!map.emplace(std::move(type), std::move(*bytes)).second) {
            return reader_.fail(at, "duplicate key");
        }
    } while (reader_.skip(','));
    return reader_.expect('}', "expected ',' or '}'");
}

bool ItemReader::readMember(const std::string& name, ClipItem& item, unsigned& seen) {
    const auto once = [&](Member member) {
        if ((seen & member) != 0) {
            return reader_.fail(reader_.offset(), "duplicate key");
        }
        seen |= member;
        return true;
    };
    if (name == "text") {
        return once(text) && readOptionalString(item.text);
    }
    if (name == "date") {
        if (!once(date)) {
            return false;
        }
        reader_.skipWhitespace();
        if (reader_.atEnd()) {
            return reader_.failAtEnd();
        }
        const char first = reader_.peek();
        if (first != '-' && (first < '0' || first > '9')) {
            return reader_.fail(reader_.offset(), "expected a number");
        }
        JsonReader::Number number;
        if (!reader_.readNumber(number)) {
            return false;
        }
        item.date = number.value();
        return true;
    }
    if (name == "id") {
        std::string value;
        const std::size_t at = reader_.offset();
        if (!once(id) || !readString(value)) {
            return false;
        }
        const auto uuid = Uuid::parse(value);
        if (!uuid) {
            return reader_.fail(at, "not an id");
        }
        item.id = *uuid;
        return true;
    }
    if (name == "kind") {
        std::string value;
        const std::size_t at = reader_.offset();
        if (!once(kind) || !readString(value)) {
            return false;
        }
        if (value == "text") {
            item.kind = ClipItem::Kind::text;
        } else if (value == "image") {
            item.kind = ClipItem::Kind::image;
        } else if (value == "files") {
            item.kind = ClipItem::Kind::files;
        } else {
            return reader_.fail(at, "unknown kind");
        }
        return true;
    }
    if (name == "app") {
        return once(app) && readOptionalString(item.app);
    }
    if (name == "imageType") {
        return once(imageType) && readOptionalString(item.imageType);
    }
    if (name == "imageHash") {
        return once(imageHash) && readOptionalString(item.imageHash);
    }
    if (name == "filePaths") {
        return once(filePaths) && readPaths(item.filePaths);
    }
    if (name == "rich") {
        return once(rich) && readRich(item.rich);
    }
    return reader_.skipValue(kMaxUnknownDepth);
}

std::optional<ClipItem> ItemReader::read() {
    if (!reader_.expect('{', "expected an object")) {
        return std::nullopt;
    }
    ClipItem item;
    unsigned seen = 0;
    if (!reader_.skip('}')) {
        std::string name;
        do {
            name.clear();
            if (!readString(name) || !reader_.expect(':', "expected ':'") ||
                !readMember(name, item, seen)) {
                return std::nullopt;
            }
        } while (reader_.skip(','));
        if (!reader_.expect('}', "expected ',' or '}'")) {
            return std::nullopt;
        }
    }
    if ((seen & (id | kind | date)) != (id | kind | date)) {
        return std::nullopt;
    }
    return item;
}

}  // namespace

bool ClipboardHistoryFile::write(const ClipItems& items, const ByteSink& sink) {
    constexpr std::size_t kPiece = std::size_t{1} << 20;
    std::string out;
    out.reserve(kPiece + kPiece / 4);
    out += '[';
    bool first = true;
    for (const ClipItem& item : items) {
        out += first ? "" : ",";
        first = false;
        writeItem(out, item);
        if (out.size() >= kPiece) {
            if (!sink(out)) {
                return false;
            }
            out.clear();
        }
    }
    out += ']';
    return sink(out);
}

std::string ClipboardHistoryFile::encode(const ClipItems& items) {
    std::string text;
    write(items, [&text](std::string_view piece) {
        text += piece;
        return true;
    });
    return text;
}

std::optional<ClipItems> ClipboardHistoryFile::decode(std::string_view text) {
    if (text.size() > kMaxBytes) {
        return std::nullopt;
    }
    JsonReader reader(text);
    if (!reader.expect('[', "expected an array")) {
        return std::nullopt;
    }
    ClipItems items;
    if (!reader.skip(']')) {
        ItemReader itemReader(reader);
        do {
            auto item = itemReader.read();
            if (!item) {
                return std::nullopt;
            }
            items.push_back(std::move(*item));
        } while (reader.skip(','));
        if (!reader.expect(']', "expected ',' or ']'")) {
            return std::nullopt;
        }
    }
    reader.skipWhitespace();
    if (!reader.atEnd()) {
        return std::nullopt;
    }
    return items;
}

}  // namespace quorvane
