#pragma once

// The uniform type identifiers the pasteboard code reads and writes by name.
namespace quorvane::pasteboard_type {

// NSPasteboardTypeString.
inline constexpr const char* string = "public.utf8-plain-text";
// NSPasteboardTypeFileURL.
inline constexpr const char* fileURL = "public.file-url";
inline constexpr const char* png = "public.png";
inline constexpr const char* tiff = "public.tiff";
inline constexpr const char* rtf = "public.rtf";
inline constexpr const char* rtfd = "com.apple.flat-rtfd";
inline constexpr const char* html = "public.html";

}  // namespace quorvane::pasteboard_type
