#include "qdf/hpimport/derivecontroltree.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <tuple>

#include "qdf/control/nametable.h"
#include "qdf/definition/records.h"
#include "qdf/hpimport/derivecolormodes.h"
#include "qdf/hpimport/growingtree.h"
#include "qdf/hpimport/hpresource.h"
#include "qdf/hpimport/recordkeys.h"
#include "qdf/support/foreach.h"
#include "qdf/support/idset.h"
#include "qdf/support/text.h"

namespace {

std::uint32_t AsWord(int id) { return static_cast<std::uint32_t>(id); }

// The ids of all records of a list that have one key, in list order.
template <class Key>
class IDsByKey {
 public:
  void Add(const Key& key, int id) {
    const auto place = keys_.FindOrAdd(key);
    if (place.isNew) ids_.emplace_back();
    ids_[static_cast<std::size_t>(place.number)].Add(AsWord(id));
  }
  ADWordArray& Of(const Key& key) {
    const int number = keys_.Find(key);
    return number >= 0 ? ids_[static_cast<std::size_t>(number)] : none_;
  }

 private:
  KeyIndex<Key> keys_;
  std::deque<ADWordArray> ids_;
  ADWordArray none_;
};

// What the levels of a path are called in a document: the ids that a resource names.
class IDTables {
 public:
  IDTables(const APtrArray& mediaList, const APtrArray& printModeList,
           const APtrArray& resolutionList, const APtrArray& colorModeList)
      : colorModeList_(colorModeList) {
    ForEachRecord<MediaTypeInfo>(mediaList, [&](const MediaTypeInfo& media) {
      media_.Add({FieldText(media.InternalName)}, media.ID);
    });
    ForEachRecord<PrintModeInfo>(printModeList, [&](const PrintModeInfo& printMode) {
      printModes_.Add({FieldText(printMode.DisplayName)}, printMode.ID);
    });
    ForEachRecord<ResolutionInfo>(resolutionList, [&](const ResolutionInfo& record) {
      resolutions_.Add({FieldText(record.DisplayName), record.XResolution, record.YResolution},
                       record.ID);
    });
  }

  ADWordArray& Media(const HPResourceInfo& resource) {
    return media_.Of({FieldPart(resource.MediaName)});
  }
  ADWordArray& PrintModes(const HPResourceInfo& resource) {
    return printModes_.Of({FieldPart(resource.PrintQuality)});
  }
  ADWordArray& Resolutions(const HPResourceInfo& resource) {
    return resolutions_.Of(
        {FieldPart(resource.DisplayResolution), resource.InputHRes, resource.InputVRes});
  }
  ADWordArray& ColorModes(const HPResourceInfo& resource) {
    const auto [known, isNew] =
        colorModes_.try_emplace({static_cast<const char*>(resource.InputFormat),
                                 resource.CColorDepth, resource.KColorDepth});
    if (isNew) CollectColorModeIDs(resource, colorModeList_, known->second);
    return known->second;
  }

 private:
  IDsByKey<NameKey> media_;
  IDsByKey<NameKey> printModes_;
  IDsByKey<ResolutionKey> resolutions_;
  const APtrArray& colorModeList_;
  // By input format and both depths, of which there are few.
  std::map<std::tuple<std::string, int, int>, ADWordArray> colorModes_;
};

CQDFNode* AddLeaf(CQDFNode& parent) {
  CQDFNode* leaf = AddChildNode(parent);
  leaf->Default = -1;
  return leaf;
}

// The names that the nodes refer to.
class Names {
 public:
  Names(AStringArray& iccProfiles, AStringArray& oemInfos, AStringArray& ditherNames)
      : profiles_(iccProfiles, NameCase::Ignored),
        oemInfos_(oemInfos, NameCase::Ignored),
        dithers_(ditherNames, NameCase::Exact) {}

  // What a resource gives its colour mode node: its file's name and a pair of leaves.
  void AddTo(CQDFNode& colorMode, const HPResourceInfo& resource) {
    InternDefaultStringIfGiven(&colorMode, Trimmed(View(resource.FileName)), oemInfos_);
    CQDFNode* profile = AddLeaf(colorMode);
    InternDefaultStringIfGiven(profile, View(resource.OutputICC), profiles_);
    if (profile->Default >= 0) profile->IDs.Add(AsWord(profile->Default));
    CQDFNode* dither = AddLeaf(colorMode);
    dither->IDs.Add(AsWord(dithers_.Intern(DitherName(resource))));
  }

 private:
  // Algorithm may be as great as an int can be.
  static std::string DitherName(const HPResourceInfo& resource) {
    return std::to_string(100LL + resource.Algorithm);
  }

  NameTable profiles_;
  NameTable oemInfos_;
  NameTable dithers_;
};

CQDFNode& AddInkNode(CQDFNode& root, int inkID, int defaultMedia) {
  CQDFNode* ink = AddChildNode(root);
  ink->IDs.Add(AsWord(inkID));
  ink->Default = defaultMedia;
  root.Default = inkID;
  return *ink;
}

}  // namespace

CQDFNode* FindOrAddChild(CQDFNode* parent, ADWordArray& ids) {
  for (int i = 0; i < parent->Children.GetSize(); ++i) {
    CQDFNode* child = ChildAt(*parent, i);
    if (IDArraysOverlap(child->IDs, ids) == 0) continue;
    MergeIDArray(*child, ids);
    return child;
  }
  return AddChildNode(*parent, ids);
}

int IDArraysOverlap(const ADWordArray& a, const ADWordArray& b) {
  IDSet known;
  for (const std::uint32_t id : a) known.Add(id);
  return std::any_of(b.begin(), b.end(), [&](std::uint32_t id) { return known.Holds(id); }) ? 1 : 0;
}

int FindIDByDisplayName(AString name, APtrArray& list) {
  // Both kinds of record begin alike.
  static_assert(offsetof(MediaTypeInfo, ID) == offsetof(PrintModeInfo, ID));
  static_assert(offsetof(MediaTypeInfo, DisplayName) == offsetof(PrintModeInfo, DisplayName));
  const std::string_view wanted = FieldPart(name);
  for (int i = 0; i < list.GetSize(); ++i) {
    const char* record = static_cast<const char*>(list.GetAt(i));
    const char* displayName = record + offsetof(MediaTypeInfo, DisplayName);
    const std::size_t length = strnlen(displayName, sizeof(MediaTypeInfo::DisplayName));
    if (std::string_view(displayName, length) != wanted) continue;
    int id = 0;
    std::memcpy(&id, record + offsetof(MediaTypeInfo, ID), sizeof id);
    return id;
  }
  return 1;
}

void CollectMediaIDs(AString name, APtrArray& mediaList, ADWordArray& ids) {
  const std::string_view wanted = FieldPart(name);
  ForEachRecord<MediaTypeInfo>(mediaList, [&](const MediaTypeInfo& media) {
    if (FieldText(media.InternalName) == wanted) ids.Add(AsWord(media.ID));
  });
}

int DeriveControlTree(APtrArray& resources, APtrArray& inkList, APtrArray& mediaList,
                      APtrArray& printModeList, APtrArray& resolutionList, APtrArray& colorModeList,
                      CQDFNode* root, AStringArray& iccProfiles, AStringArray& oemInfos,
                      AStringArray& ditherNames) {
  if (resources.GetSize() == 0 || inkList.GetSize() == 0) return 0;
  IDTables ids(mediaList, printModeList, resolutionList, colorModeList);
  Names names(iccProfiles, oemInfos, ditherNames);
  const int defaultPrintMode = FindIDByDisplayName("Best", printModeList);
  CQDFNode& ink = AddInkNode(*root, static_cast<InkTypeInfo*>(inkList.GetAt(0))->ID,
                             FindIDByDisplayName("HP Proofing Gloss", mediaList));
  GrowingTree tree;
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    CQDFNode& media = tree.FindOrAddChild(ink, ids.Media(resource));
    media.Default = defaultPrintMode;
    CQDFNode& printMode = tree.FindOrAddChild(media, ids.PrintModes(resource));
    CQDFNode& resolution = tree.FindOrAddChild(printMode, ids.Resolutions(resource));
    names.AddTo(tree.FindOrAddChild(resolution, ids.ColorModes(resource)), resource);
  });
  return 1;
}
