#include "qdf/hpimport/recordkeys.h"

#include <algorithm>
#include <bit>

#include "qdf/definition/records.h"
#include "qdf/support/hashmix.h"
#include "qdf/support/text.h"

namespace {

std::uint32_t Joined(std::uint32_t a, std::uint32_t b) {
  return static_cast<std::uint32_t>(MixHash(std::uint64_t{a} << 32U | b));
}

std::uint32_t HashNumber(double number) {
  const double onlyOneZero = number + 0.0;
  return static_cast<std::uint32_t>(MixHash(std::bit_cast<std::uint64_t>(onlyOneZero)));
}

std::string_view Kept(std::string_view text, KeyTexts& texts) {
  char* copy = static_cast<char*>(texts.allocate(text.size(), 1));
  std::copy(text.begin(), text.end(), copy);
  return {copy, text.size()};
}

}  // namespace

std::string_view FieldPart(const AString& text) {
  return View(text).substr(0, sizeof(MediaTypeInfo::InternalName));
}

std::uint32_t NameKey::Hash() const { return HashText(name); }

void NameKey::KeepTexts(KeyTexts& texts) { name = Kept(name, texts); }

std::uint32_t MediaKey::Hash() const {
  return Joined(HashText(internalName), HashText(unlocalizedName));
}

void MediaKey::KeepTexts(KeyTexts& texts) {
  internalName = Kept(internalName, texts);
  unlocalizedName = Kept(unlocalizedName, texts);
}

bool PrintModeKey::operator==(const PrintModeKey& other) const {
  return displayName == other.displayName && EqualNoCase(internalName, other.internalName);
}

std::uint32_t PrintModeKey::Hash() const {
  return Joined(HashTextNoCase(internalName), HashText(displayName));
}

void PrintModeKey::KeepTexts(KeyTexts& texts) {
  internalName = Kept(internalName, texts);
  displayName = Kept(displayName, texts);
}

std::uint32_t ResolutionKey::Hash() const {
  return Joined(HashText(displayName), Joined(HashNumber(x), HashNumber(y)));
}

void ResolutionKey::KeepTexts(KeyTexts& texts) { displayName = Kept(displayName, texts); }
