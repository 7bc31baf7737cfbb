#include "tool/ripresolutions.h"

#include "qdf/support/text.h"

RipResolutions RipResolutionsOf(const CQDFNode* colorMode, const APtrArray& list) {
  RipResolutions result;
  if (colorMode == nullptr || colorMode->Children.GetSize() <= kRipResolutionLeaf) return result;
  for (const std::uint32_t id : ChildAt(*colorMode, kRipResolutionLeaf)->IDs) {
    const int index = static_cast<int>(id);
    if (index < 0 || index >= list.GetSize()) continue;
    const auto* record = static_cast<const DitherResolutionInfo*>(list.GetAt(index));
    result.byName.emplace(FieldText(record->Name), record);
    result.all.push_back(record);
  }
  return result;
}

Value RipResolutionValue(const DitherResolutionInfo* record) {
  if (record == nullptr) return {};
  return Object({{"x", "", record->XResolution}, {"y", "", record->YResolution}}, "x");
}
