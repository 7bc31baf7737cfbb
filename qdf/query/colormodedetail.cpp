// What belongs to one combination of ink, media, print mode, resolution and colour mode: its
// printer specific text, profiles, dithers and RIP resolutions.

#include "qdf/control/deferreddithers.h"
#include "qdf/core/guarded.h"
#include "qdf/query/iccprofile.h"
#include "qdf/query/treewalk.h"
#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"

namespace {

constexpr const char* kAll = "ALL";

// Null where the node doesn't have that many leaves, as in a tree that was derived from HP
// resources.
const CQDFNode* FindLeaf(const CQDFNode& colorMode, ColorModeLeaf leaf) {
  return colorMode.Children.GetSize() > leaf ? ChildAt(colorMode, leaf) : nullptr;
}

bool IsIndexOf(int index, int size) { return index >= 0 && index < size; }

// The leaf's names, which go to the caller's vector once all memory for them is there.
struct Names {
  std::vector<AString> listed;
  bool all = false;  // then "ALL" is the only one
};

Names ListNames(const CQDFNode& leaf, const AStringArray& names) {
  Names result;
  ADWordArray indices;
  UniqueIDs(indices).AddAll(leaf.IDs);
  for (const std::uint32_t id : indices) {
    const int index = static_cast<int>(id);
    if (!IsIndexOf(index, names.GetSize())) continue;
    const AString& name = names.ElementAt(index);
    if (name.CompareNoCase(kAll) == 0) return {{kAll}, true};
    result.listed.push_back(name);
  }
  return result;
}

void Deliver(Names names, std::vector<AString>& out) {
  if (names.all) {
    out = std::move(names.listed);
  } else {
    out.reserve(out.size() + names.listed.size());
    for (AString& name : names.listed) out.push_back(std::move(name));
  }
}

AString DefaultName(const CQDFNode& leaf, const AStringArray& names) {
  return IsIndexOf(leaf.Default, names.GetSize()) ? names.ElementAt(leaf.Default) : AString();
}

}  // namespace

int APMQDF::FindColorModeNode(const int& ink, const int& media, const int& printMode,
                              const int& resolution, const int& colorMode, CQDFNode*& node) {
  return Guarded(0, [&] {
    const CQDFNode* found = FindControlPath({ink, media, printMode, resolution, colorMode});
    if (found == nullptr) return 0;
    ReadDithersOf(*found);
    node = const_cast<CQDFNode*>(found);  // NOLINT(cppcoreguidelines-pro-type-const-cast)
    return 1;
  });
}

int APMQDF::GetOEMInfo(const int& ink, const int& media, const int& printMode,
                       const int& resolution, const int& colorMode, AString& text) {
  return Guarded(0, [&] {
    CQDFNode* node = nullptr;
    if (FindColorModeNode(ink, media, printMode, resolution, colorMode, node) == 0) return 0;
    if (IsIndexOf(node->Default, OEMInfoList.GetSize())) text = OEMInfoList[node->Default];
    return text.GetLength() > 0 ? 1 : 0;
  });
}

int APMQDF::GetProfileList(const int& ink, const int& media, const int& printMode,
                           const int& resolution, const int& colorMode,
                           std::vector<AString>& profiles, AString& defaultProfile) {
  defaultProfile.Empty();
  return Guarded(0, [&] {
    CQDFNode* node = nullptr;
    if (FindColorModeNode(ink, media, printMode, resolution, colorMode, node) == 0) return 0;
    const CQDFNode* leaf = FindLeaf(*node, kProfileLeaf);
    if (leaf != nullptr) {
      AString name = DefaultName(*leaf, ICCProfileList);
      Deliver(ListNames(*leaf, ICCProfileList), profiles);
      const bool restricts = !profiles.empty() && profiles.front() != kAll;
      if (!restricts || PMIccProfileIsInList(name, profiles) != 0) {
        defaultProfile = std::move(name);
      }
    }
    return profiles.empty() ? 0 : 1;
  });
}

int APMQDF::GetDitherList(const int& ink, const int& media, const int& printMode,
                          const int& resolution, const int& colorMode,
                          std::vector<AString>& dithers, AString& defaultDither) {
  defaultDither.Empty();
  return Guarded(0, [&] {
    CQDFNode* node = nullptr;
    if (FindColorModeNode(ink, media, printMode, resolution, colorMode, node) == 0) return 0;
    const CQDFNode* leaf = FindLeaf(*node, kDitherLeaf);
    if (leaf != nullptr) {
      AString name = DefaultName(*leaf, DitherNameList);
      Deliver(ListNames(*leaf, DitherNameList), dithers);
      defaultDither = std::move(name);
    }
    return dithers.empty() ? 0 : 1;
  });
}

int APMQDF::GetRipResolutionForDither(const int& ink, const int& media, const int& printMode,
                                      const int& resolution, const int& colorMode,
                                      const AString& dither, double& x, double& y) {
  x = y = 0.0;
  CQDFNode* node = nullptr;
  if (FindColorModeNode(ink, media, printMode, resolution, colorMode, node) == 0) return 0;
  const CQDFNode* leaf = FindLeaf(*node, kRipResolutionLeaf);
  if (leaf == nullptr) return 0;
  const std::string_view wanted = View(dither);
  for (const std::uint32_t id : leaf->IDs) {
    const int index = static_cast<int>(id);
    if (!IsIndexOf(index, DitherResolutionList.GetSize())) continue;
    const auto& record = *static_cast<DitherResolutionInfo*>(DitherResolutionList[index]);
    if (FieldText(record.Name) != wanted) continue;
    x = record.XResolution;
    y = record.YResolution;
    return 1;
  }
  return 0;
}

int APMQDF::GetResolutionIDFromDisplayID(const int& /*ink*/, const int& /*media*/,
                                         const int& /*printMode*/, const int& displayID,
                                         int& resolution) {
  resolution = displayID;
  return 1;
}

int PMIccProfileIsInList(const AString& profile, std::vector<AString>& list) {
  if (list.empty()) return 1;
  for (const AString& each : list) {
    if (each.CompareNoCase(profile) == 0 || each.CompareNoCase(kAll) == 0) return 1;
  }
  return 0;
}
