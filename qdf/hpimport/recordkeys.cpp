#include "qdf/hpimport/recordkeys.h"

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

}  // namespace

std::string_view FieldPart(const AString& text) {
  return View(text).substr(0, sizeof(MediaTypeInfo::InternalName));
}

std::uint32_t NameKey::Hash() const { return HashText(name); }

std::uint32_t MediaKey::Hash() const {
  return Joined(HashText(internalName), HashText(unlocalizedName));
}

bool PrintModeKey::operator==(const PrintModeKey& other) const {
  return displayName == other.displayName && EqualNoCase(internalName, other.internalName);
}

std::uint32_t PrintModeKey::Hash() const {
  return Joined(HashTextNoCase(internalName), HashText(displayName));
}

std::uint32_t ResolutionKey::Hash() const {
  return Joined(HashText(displayName), Joined(HashNumber(x), HashNumber(y)));
}
