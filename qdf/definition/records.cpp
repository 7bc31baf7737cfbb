#include "qdf/definition/records.h"

#include "qdf/support/text.h"

namespace {

ANewColorOpt* CopyColorants(const ColorModeInfo& source) {
  if (source.ColorantCount < 1 || source.Colorants == nullptr) return nullptr;
  auto* copies = new ANewColorOpt[static_cast<std::size_t>(source.ColorantCount)];
  for (int i = 0; i < source.ColorantCount; ++i) copies[i] = source.Colorants[i];
  return copies;
}

void CopyNames(ColorModeInfo& target, const ColorModeInfo& source) {
  SetField(target.DisplayName, FieldText(source.DisplayName));
  SetField(target.InternalName, FieldText(source.InternalName));
}

}  // namespace

ColorModeInfo::ColorModeInfo(const ColorModeInfo& other)
    : ID(other.ID), ColorantCount(other.ColorantCount), Colorants(CopyColorants(other)) {
  CopyNames(*this, other);
}

ColorModeInfo& ColorModeInfo::operator=(const ColorModeInfo& other) {
  if (this == &other) return *this;
  ANewColorOpt* copies = CopyColorants(other);
  delete[] Colorants;
  Colorants = copies;
  ColorantCount = other.ColorantCount;
  ID = other.ID;
  CopyNames(*this, other);
  return *this;
}

ColorModeInfo::~ColorModeInfo() {
  delete[] Colorants;
  Colorants = nullptr;
}
