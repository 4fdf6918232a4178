#include "base/FileURL.hpp"

#include "base/HexDigit.hpp"

namespace quorvane::file_url {

namespace {

bool unreserved(unsigned char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~' || c == '/';
}

}  // namespace

std::string fromPath(std::string_view path) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string url = "file://";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (unreserved(byte)) {
            url += c;
        } else {
            url += '%';
            url += digits[byte >> 4];
            url += digits[byte & 0xF];
        }
    }
    return url;
}

std::optional<std::string> toPath(std::string_view url) {
    constexpr std::string_view scheme = "file://";
    if (!url.starts_with(scheme)) {
        return std::nullopt;
    }
    url.remove_prefix(scheme.size());
    if (url.starts_with("localhost/")) {
        url.remove_prefix(9);
    }
    if (!url.starts_with('/')) {
        return std::nullopt;
    }
    std::string path;
    for (std::size_t i = 0; i < url.size(); ++i) {
        if (url[i] != '%') {
            path += url[i];
            continue;
        }
        if (i + 2 >= url.size()) {
            return std::nullopt;
        }
        const int high = hexDigitValue(url[i + 1]);
        const int low = hexDigitValue(url[i + 2]);
        if (high < 0 || low < 0) {
            return std::nullopt;
        }
        path += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return path;
}

}  // namespace quorvane::file_url
