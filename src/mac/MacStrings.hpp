#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mac/CFRef.hpp"
#include "mac/MacFrameworks.h"

namespace quorvane {

// Text crosses into the system as UTF-8 and comes back as UTF-8.

// Empty when the bytes are not valid UTF-8.
CFRef<CFStringRef> makeCFString(std::string_view utf8);
// nil when the bytes are not valid UTF-8.
NSString* makeNSString(std::string_view utf8);
// For AppKit, which refuses nil: text that is not UTF-8 becomes empty.
NSString* text(std::string_view utf8);

// Empty for NULL or nil. A lone UTF-16 surrogate, which UTF-8 cannot carry, comes out as '?'.
std::string utf8String(CFStringRef string);
std::string utf8String(NSString* string);
// Nothing unless the object is a string; nil is none.
std::optional<std::string> utf8StringIfText(id object);
// The strings of an array, in order; elements of other kinds are left out, and nil is empty.
std::vector<std::string> utf8Strings(NSArray* array);
// The paths of URLs, in order; a URL without one is left out.
std::vector<std::string> pathsOf(NSArray<NSURL*>* urls);
// What the error says for the user, or the fallback when there is no error to ask.
std::string errorText(NSError* error, std::string_view fallback);

}  // namespace quorvane
