#include "qdf/support/text.h"

#include <algorithm>

namespace {

constexpr std::size_t kChunk = sizeof(std::uint64_t);

std::uint64_t ChunkAt(const char* text) {
  std::uint64_t chunk = 0;
  std::memcpy(&chunk, text, kChunk);
  return chunk;
}

// Eight bytes at a time, each with these bits set; the last eight may overlap those before them.
std::uint32_t Hash(std::string_view text, std::uint64_t setBits) {
  std::uint64_t hash = text.size();
  const auto mix = [&](std::uint64_t chunk) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
    hash = (hash ^ (chunk | setBits)) * kFactor;
    hash ^= hash >> 32U;
  };
  if (text.size() < kChunk) {
    std::uint64_t chunk = 0;
    for (const char c : text) chunk = chunk << 8U | static_cast<unsigned char>(c);
    mix(chunk);
  } else {
    for (std::size_t at = 0; at + kChunk < text.size(); at += kChunk) mix(ChunkAt(&text[at]));
    mix(ChunkAt(text.data() + text.size() - kChunk));
  }
  return static_cast<std::uint32_t>(hash);
}

}  // namespace

bool EqualNoCase(std::string_view a, std::string_view b) {
  const auto sameChar = [](char x, char y) { return UpperChar(x) == UpperChar(y); };
  return a.size() == b.size() && (a == b || std::equal(a.begin(), a.end(), b.begin(), sameChar));
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::uint32_t HashText(std::string_view text) { return Hash(text, 0); }

// The bit in which small and capital letters differ is set in every byte; that it makes some other
// characters alike does no harm to a hash.
std::uint32_t HashTextNoCase(std::string_view text) { return Hash(text, 0x2020202020202020U); }

void CopyToField(char* field, std::size_t size, std::string_view text) {
  const std::size_t used = std::min(size, text.size());
  // memmove: a record may be assigned to itself.
  std::memmove(field, text.data(), used);
  std::memset(field + used, 0, size - used);
}
