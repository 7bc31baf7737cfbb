#pragma once

// What a byte may be in an XML document, as a table of its classes.

#include <array>
#include <cstdint>

enum XMLClass : std::uint8_t {
  kNameStart = 1,
  kName = 2,
  kSpace = 4,
  kControl = 8,
  kTextStop = 16,   // where plain text needs a closer look
  kValueStop = 32,  // where an attribute value does
};

// Bytes from 128 on are parts of characters that names may hold: which ones isn't tested, since the
// encoding of a document isn't looked at.
constexpr std::array<std::uint8_t, 256> MakeXMLClasses() {
  std::array<std::uint8_t, 256> classes{};
  for (unsigned int c = 0; c < 256; ++c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c >= 128;
    const bool digit = c >= '0' && c <= '9';
    const bool space = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    std::uint8_t bits = 0;
    if (letter || c == '_' || c == ':') bits |= kNameStart | kName;
    if (digit || c == '-' || c == '.') bits |= kName;
    if (space) bits |= kSpace;
    if (c < ' ' && !space) bits |= kControl | kTextStop | kValueStop;
    if (c == '<' || c == '&' || c == ']') bits |= kTextStop;
    if (c == '<' || c == '&' || c == '"' || c == '\'') bits |= kValueStop;
    classes[c] = bits;
  }
  return classes;
}

constexpr std::array<std::uint8_t, 256> kXMLClasses = MakeXMLClasses();

inline bool IsXML(char c, std::uint8_t bits) {
  return (kXMLClasses[static_cast<unsigned char>(c)] & bits) != 0;
}
