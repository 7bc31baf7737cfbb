#pragma once

// Texts without ownership: ASCII case and white space whatever the locale, and the fixed character
// fields of the records, which hold a terminating zero only when their text is shorter than the
// field.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "qdf/support/astring.h"

constexpr char UpperChar(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// A null pointer counts as an empty text.
constexpr const char* OrEmpty(const char* text) { return text != nullptr ? text : ""; }

inline std::string_view View(const AString& text) {
  return {static_cast<const char*>(text), static_cast<std::size_t>(text.GetLength())};
}

bool EqualNoCase(std::string_view a, std::string_view b);

// Without the white space at both ends.
std::string_view Trimmed(std::string_view text);

// Hashes for HashIndex: the second is the same for texts that differ in the case of letters only.
// They differ from one run of a program to the next.
std::uint32_t HashText(std::string_view text);
std::uint32_t HashTextNoCase(std::string_view text);

// Copies as much of the text as the field holds; zeros follow a shorter one.
void CopyToField(char* field, std::size_t size, std::string_view text);

template <std::size_t N>
void SetField(char (&field)[N], std::string_view text) {
  CopyToField(field, N, text);
}

// The text of a field: what stands before the first zero, at most the whole field.
template <std::size_t N>
std::string_view FieldText(const char (&field)[N]) {
  return {field, strnlen(field, N)};
}
