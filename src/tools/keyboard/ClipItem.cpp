#include "tools/keyboard/ClipItem.hpp"

namespace quorvane {

const char* rawValue(ClipItem::Kind kind) {
    switch (kind) {
        case ClipItem::Kind::text:
            return "text";
        case ClipItem::Kind::image:
            return "image";
        case ClipItem::Kind::files:
            return "files";
    }
    return "text";
}

bool ClipItem::sameContent(const ClipItem& other) const {
    if (kind != other.kind) {
        return false;
    }
    switch (kind) {
        case Kind::text:
            return text == other.text;
        case Kind::image:
            return imageHash && other.imageHash && *imageHash == *other.imageHash;
        case Kind::files:
            return filePaths == other.filePaths;
    }
    return false;
}

}  // namespace quorvane
