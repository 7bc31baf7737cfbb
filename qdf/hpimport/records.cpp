#include "qdf/hpimport/records.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "qdf/support/text.h"

namespace {

// The zero can't stand in a name, so that no two pairs give one key.
std::string Joined(std::string_view a, std::string_view b) {
  std::string key(a);
  key += '\0';
  key += b;
  return key;
}

void AppendBytes(std::string& key, double value) {
  const double onlyOneZero = value + 0.0;
  char bytes[sizeof(double)];
  std::memcpy(bytes, &onlyOneZero, sizeof bytes);
  key.append(bytes, sizeof bytes);
}

}  // namespace

std::string_view FieldPart(const AString& text) {
  return View(text).substr(0, sizeof(MediaTypeInfo::InternalName));
}

std::string MediaKey(std::string_view internalName, std::string_view unlocalizedName) {
  return Joined(internalName, unlocalizedName);
}

std::string PrintModeKey(std::string_view internalName, std::string_view displayName) {
  std::string upper(internalName);
  std::transform(upper.begin(), upper.end(), upper.begin(), UpperChar);
  return Joined(upper, displayName);
}

std::string ResolutionKey(std::string_view displayName, double x, double y) {
  if (std::isnan(x) || std::isnan(y)) return {};
  std::string key = Joined(displayName, {});
  AppendBytes(key, x);
  AppendBytes(key, y);
  return key;
}
