#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8 exactly as Unicode defines it well-formed: no overlong forms, no encoded surrogates,
// nothing above U+10FFFF. Text that reaches Quorvane from disk or from other processes is held
// to this before anything treats it as characters.
namespace quorvane::utf8 {

// The length of the well-formed character that `text` starts with; 0 when `text` is empty or
// starts with an ill-formed sequence.
std::size_t sequenceLength(std::string_view text);

// Whether `text` is a multi-byte character cut short: every byte present fits, but the lead byte
// announced more. Readers use this to tell truncated input from damaged input.
bool isTruncatedSequence(std::string_view text);

bool isValid(std::string_view text);

// The number of bytes at the start of `text` that are well-formed.
std::size_t validPrefixLength(std::string_view text);

// A surrogate or a value above U+10FFFF has no encoding; U+FFFD REPLACEMENT CHARACTER is
// appended instead, so the result is always well-formed.
void appendCodePoint(std::string& out, char32_t codePoint);

// At most `maxCodePoints` characters from the start of `text`, never cutting one in half. Each
// byte of an ill-formed sequence counts as a character of its own, so damaged text still
// truncates to a bounded length.
std::string truncate(std::string_view text, std::size_t maxCodePoints);

}  // namespace quorvane::utf8
