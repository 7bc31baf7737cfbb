#include "qdf/support/text.h"

#include <algorithm>

#include "qdf/support/hashmix.h"

namespace {

constexpr std::size_t kChunk = sizeof(std::uint64_t);

std::uint64_t ChunkAt(const char* text) {
  std::uint64_t chunk = 0;
  std::memcpy(&chunk, text, kChunk);
  return chunk;
}

constexpr std::uint64_t InEachByte(unsigned int byte) { return 0x0101010101010101U * byte; }

// UpperChar for each of eight bytes. The sums carry into a byte's highest bit where its lower seven
// bits are at least those of `a`, or beyond those of `z`.
std::uint64_t UpperChunk(std::uint64_t chunk) {
  const std::uint64_t lowBits = chunk & InEachByte(0x7F);
  const std::uint64_t fromA = lowBits + InEachByte(0x80 - 'a');
  const std::uint64_t beyondZ = lowBits + InEachByte(0x7F - 'z');
  const std::uint64_t isSmall = (fromA ^ beyondZ) & ~chunk & InEachByte(0x80);
  return chunk ^ isSmall >> 2U;
}

// Eight bytes at a time, each eight as `fold` gives them; the last may overlap those before them.
template <class Fold>
std::uint32_t Hash(std::string_view text, Fold fold) {
  std::uint64_t hash = text.size();
  const auto mix = [&](std::uint64_t chunk) { hash = MixHash(hash ^ fold(chunk)); };
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

std::uint32_t HashText(std::string_view text) {
  return Hash(text, [](std::uint64_t chunk) { return chunk; });
}

std::uint32_t HashTextNoCase(std::string_view text) { return Hash(text, UpperChunk); }

void CopyToField(char* field, std::size_t size, std::string_view text) {
  const std::size_t used = std::min(size, text.size());
  // memmove: a record may be assigned to itself.
  std::memmove(field, text.data(), used);
  std::memset(field + used, 0, size - used);
}
