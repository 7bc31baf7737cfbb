#include "qdf/support/text.h"

#include <algorithm>

namespace {

constexpr std::uint32_t kHashStart = 2166136261U;
constexpr std::uint32_t kHashFactor = 16777619U;

template <class Fold>
std::uint32_t Hash(std::string_view text, Fold fold) {
  std::uint32_t hash = kHashStart;
  for (const char c : text) {
    hash = (hash ^ static_cast<unsigned char>(fold(c))) * kHashFactor;
  }
  return hash;
}

}  // namespace

bool EqualNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return UpperChar(x) == UpperChar(y); });
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::uint32_t HashText(std::string_view text) {
  return Hash(text, [](char c) { return c; });
}

std::uint32_t HashTextNoCase(std::string_view text) { return Hash(text, UpperChar); }

void CopyToField(char* field, std::size_t size, std::string_view text) {
  const std::size_t used = std::min(size, text.size());
  // memmove: a record may be assigned to itself.
  std::memmove(field, text.data(), used);
  std::memset(field + used, 0, size - used);
}
