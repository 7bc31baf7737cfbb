#pragma once

// The RIP resolutions of one colour mode, found by the names of their dithers without a walk.

#include <string_view>
#include <unordered_map>
#include <vector>

#include "qdf/control/ditherlist.h"
#include "tool/report.h"

struct RipResolutions {
  // Null when the document gives none for that name.
  const DitherResolutionInfo* Find(std::string_view dither) const {
    const auto found = byName.find(dither);
    return found != byName.end() ? found->second : nullptr;
  }

  // The first record with a name stands.
  std::unordered_map<std::string_view, const DitherResolutionInfo*> byName;
  std::vector<const DitherResolutionInfo*> all;
};

// Those that the leaves of the node name in the document's list; none for a null node.
RipResolutions RipResolutionsOf(const CQDFNode* colorMode, const APtrArray& list);

// Null for a null record.
Value RipResolutionValue(const DitherResolutionInfo* record);
