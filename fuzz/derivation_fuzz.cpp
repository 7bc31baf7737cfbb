// The lists, colour modes and control tree that are derived from HP resources, against the rules as
// they are told.

#include <gtest/gtest.h>

#include <limits>

#include "fuzz/fuzzing.h"
#include "qdf/control/nametable.h"
#include "qdf/hpimport/derivecolormodes.h"
#include "qdf/hpimport/derivecontroltree.h"
#include "qdf/hpimport/recordkeys.h"
#include "tests/hpimport/derived.h"
#include "tests/hpimport/resources.h"

namespace {

constexpr const char* kNames[] = {"A", "a", "B", "Best", "HP Proofing Gloss", "", " t "};
constexpr const char* kQualities[] = {"best",  "BEST",  "SuperBest", "fastest",
                                      "Photo", "draft", "normal",    "premium"};
constexpr double kNumbers[] = {600, 300, 0.0, -0.0, std::numeric_limits<double>::quiet_NaN()};

std::string Name(Choices& choose) {
  std::string name = choose.OneOf(kNames);
  if (choose.Chance(16)) name.append(255 + choose.Below(3), 'n');
  return name;
}

void AddResource(Choices& choose, Resources& resources) {
  Resource resource;
  resource.media = Name(choose);
  resource.displayNames.clear();
  for (unsigned int i = choose.Below(4); i > 0; --i) resource.displayNames.push_back(Name(choose));
  resource.customizable = static_cast<int>(choose.Below(2));
  resource.quality = choose.OneOf(kQualities);
  resource.printQuality = Name(choose);
  resource.resolution = choose.OneOf({"600", "300"});
  resource.x = choose.OneOf(kNumbers);
  resource.y = choose.OneOf(kNumbers);
  resource.format = choose.OneOf({"KCMY", "KCMY", "KCcMmY", "kcmy", ""});
  resource.black = static_cast<int>(choose.Below(3));
  resource.color = static_cast<int>(choose.Below(3));
  resource.profile = choose.OneOf({"", "p", "P"});
  resource.algorithm = choose.OneOf({0, 1, std::numeric_limits<int>::max(), -100});
  resource.file = choose.OneOf({"f.xml", "F.XML", " "});
  AddTo(resources, resource);
}

template <std::size_t N>
bool Same(const char (&a)[N], const char (&b)[N]) {
  return std::strncmp(a, b, N) == 0;
}

template <class Record, class IsSame>
bool Knows(const APtrArray& list, IsSame same) {
  const auto records = Records<Record>(list);
  return std::any_of(records.begin(), records.end(), same);
}

void PlainMedia(const APtrArray& resources, const APtrArray& oldMedia, APtrArray& list) {
  OwnedItems<MediaTypeInfo> found;
  const auto sameAs = [](const MediaTypeInfo& a) {
    return [&](const MediaTypeInfo& b) {
      return Same(a.InternalName, b.InternalName) && Same(a.UnlocalizedName, b.UnlocalizedName);
    };
  };
  for (const auto& resource : Records<HPResourceInfo>(resources)) {
    for (int i = 0; i < resource.DisplayNames.GetSize(); ++i) {
      MediaTypeInfo media{};
      SetField(media.InternalName, View(resource.MediaName));
      SetField(media.DisplayName, View(resource.DisplayNames.ElementAt(i)));
      SetField(media.UnlocalizedName, View(resource.DisplayNames.ElementAt(i)));
      media.IsCustomizableMedia = resource.IsCustomizableMedia;
      if (!Knows<MediaTypeInfo>(found, sameAs(media)))
        AddOwned(found, std::make_unique<MediaTypeInfo>(media));
    }
  }
  int counters[] = {0, 10000};
  const auto counterOf = [&](const MediaTypeInfo& media) -> int& {
    return counters[media.IsCustomizableMedia];
  };
  for (int i = 0; i < found.GetSize(); ++i) {
    auto& media = *static_cast<MediaTypeInfo*>(found[i]);
    const auto old = Records<MediaTypeInfo>(oldMedia);
    const auto match = std::find_if(old.begin(), old.end(), sameAs(media));
    if (match == old.end()) continue;
    media.ID = match->ID;
    counterOf(media) = std::max(counterOf(media), media.ID);
  }
  for (int i = 0; i < found.GetSize(); ++i) {
    auto* media = static_cast<MediaTypeInfo*>(found[i]);
    if (media->ID == 0) media->ID = ++counterOf(*media);
    int place = 0;
    while (place < list.GetSize() && static_cast<MediaTypeInfo*>(list[place])->ID <= media->ID)
      ++place;
    list.InsertAt(place, media, 1);
  }
  found.SetSize(0, -1);
}

void PlainPrintModes(const APtrArray& resources, APtrArray& list) {
  OwnedItems<PrintModeInfo> found;
  for (const auto& resource : Records<HPResourceInfo>(resources)) {
    PrintModeInfo mode{};
    SetField(mode.InternalName, View(resource.QualityName));
    SetField(mode.DisplayName, View(resource.PrintQuality));
    SetField(mode.UnlocalizedName, View(resource.PrintQuality));
    const auto same = [&](const PrintModeInfo& other) {
      return EqualNoCase(Str(mode.InternalName), Str(other.InternalName)) &&
             Same(mode.DisplayName, other.DisplayName);
    };
    if (!Knows<PrintModeInfo>(found, same)) AddOwned(found, std::make_unique<PrintModeInfo>(mode));
  }
  for (const std::string prefix : {"PREMIUM", "SUPERBEST", "BEST", "NORMAL", "FAST", "DRAFT"}) {
    for (PrintModeInfo mode : Records<PrintModeInfo>(found)) {
      if (!EqualNoCase(Str(mode.InternalName).substr(0, prefix.size()), prefix)) continue;
      mode.ID = list.GetSize() + 1;
      AddOwned(list, std::make_unique<PrintModeInfo>(mode));
    }
  }
}

void PlainResolutions(const APtrArray& resources, APtrArray& list) {
  for (const auto& resource : Records<HPResourceInfo>(resources)) {
    ResolutionInfo record{resource.InputHRes, resource.InputVRes, list.GetSize() + 1, {}};
    SetField(record.DisplayName, View(resource.DisplayResolution));
    const auto same = [&](const ResolutionInfo& other) {
      return Same(record.DisplayName, other.DisplayName) &&
             record.XResolution == other.XResolution && record.YResolution == other.YResolution;
    };
    if (!Knows<ResolutionInfo>(list, same))
      AddOwned(list, std::make_unique<ResolutionInfo>(record));
  }
}

void PlainColorModes(const APtrArray& resources, APtrArray& list) {
  const auto add = [&](const char* name, const char* displayName,
                       std::vector<std::pair<const char*, int>> colorants) {
    const auto same = [&](const ColorModeInfo& other) {
      return Str(other.InternalName) == name &&
             other.Colorants[0].Colorant.ColorDepth == colorants[0].second;
    };
    if (Knows<ColorModeInfo>(list, same)) return;
    auto mode = std::make_unique<ColorModeInfo>();
    mode->ID = list.GetSize() + 1;
    SetField(mode->InternalName, name);
    SetField(mode->DisplayName, displayName);
    mode->ColorantCount = static_cast<int>(colorants.size());
    mode->Colorants = new ANewColorOpt[colorants.size()];
    for (std::size_t i = 0; i < colorants.size(); ++i) {
      SetField(mode->Colorants[i].Colorant.InternalName, colorants[i].first);
      SetField(mode->Colorants[i].Colorant.DisplayName, colorants[i].first);
      mode->Colorants[i].Colorant.ColorDepth = colorants[i].second;
    }
    AddOwned(list, std::move(mode));
  };
  for (const auto& resource : Records<HPResourceInfo>(resources)) {
    const int k = resource.KColorDepth;
    const int c = resource.CColorDepth;
    const bool six = resource.InputFormat == "KCcMmY";
    if (!six && resource.InputFormat != "KCMY") continue;
    if (six) {
      add("CMYKLcLm", "No",
          {{"Cyan", c},
           {"Magenta", c},
           {"Yellow", c},
           {"Black", k},
           {"LCyan", c},
           {"LMagenta", c}});
    } else {
      add("CMYK", "No", {{"Cyan", c}, {"Magenta", c}, {"Yellow", c}, {"Black", k}});
    }
    add("Gray Scale", "Yes", {{"Gray", k}});
  }
}

CQDFNode* AddPlainLeaf(CQDFNode* parent) {
  CQDFNode* leaf = AddChildNode(*parent);
  leaf->Default = -1;
  return leaf;
}

// Grows the path of a resource below the ink by the operations that walk lists and children.
void GrowPlainly(HPResourceInfo& resource, DocumentMembers& lists, CQDFNode* ink) {
  ADWordArray ids;
  CollectMediaIDs(resource.MediaName, lists.MediaList, ids);
  CQDFNode* node = FindOrAddChild(ink, ids);
  node->Default = FindIDByDisplayName("Best", lists.PrintModeList);
  ids.SetSize(0, -1);
  for (const auto& mode : Records<PrintModeInfo>(lists.PrintModeList)) {
    if (FieldPart(resource.PrintQuality) == Str(mode.DisplayName)) ids.Add(std::uint32_t(mode.ID));
  }
  node = FindOrAddChild(node, ids);
  ids.SetSize(0, -1);
  for (const auto& resolution : Records<ResolutionInfo>(lists.ResolutionList)) {
    if (FieldPart(resource.DisplayResolution) == Str(resolution.DisplayName) &&
        resource.InputHRes == resolution.XResolution &&
        resource.InputVRes == resolution.YResolution) {
      ids.Add(std::uint32_t(resolution.ID));
    }
  }
  node = FindOrAddChild(node, ids);
  ids.SetSize(0, -1);
  CollectColorModeIDs(resource, lists.ColorModeList, ids);
  node = FindOrAddChild(node, ids);
  AString file = resource.FileName;
  file.TrimLeft();
  file.TrimRight();
  if (file.GetLength() > 0) InternDefaultString(node, file, lists.OEMInfoList);
  CQDFNode* profile = AddPlainLeaf(node);
  InternDefaultStringIfGiven(profile, resource.OutputICC, lists.ICCProfileList);
  if (resource.OutputICC.GetLength() > 0) {
    InternIDString(profile, resource.OutputICC, lists.ICCProfileList);
  }
  AString dither = std::to_string(resource.Algorithm + 100LL).c_str();
  int index = FindExactString(dither, lists.DitherNameList);
  if (index < 0) index = lists.DitherNameList.Add(dither);
  AddPlainLeaf(node)->IDs.Add(std::uint32_t(index));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Choices choose(TextOf(data, size));
  Resources resources;
  for (unsigned int i = choose.Below(30) + 1; i > 0; --i) AddResource(choose, resources);
  std::string old = "10002=A/A";
  for (const char* id : {"10001", "3", "0", "-4", "2", "2147483000"}) {
    old += Join({";", id, "=", choose.OneOf(kNames), "/", choose.OneOf(kNames)}, "");
  }
  const auto previous = Load({.MediaList = Entries(old)});
  const DocumentMembers former(*previous);
  APMQDF document;
  const int result = document.LoadHPResourceInfo(resources, former.InkList, former.MediaList);
  const Derived derived{DocumentMembers(document)};

  APMQDF other;
  DocumentMembers plain(other);
  PlainMedia(resources, former.MediaList, plain.MediaList);
  RequireEqual(DumpMedia(plain.MediaList), derived.media, "the media");
  if (plain.MediaList.GetSize() == 0) return 0;
  PlainPrintModes(resources, plain.PrintModeList);
  RequireEqual(DumpPrintModes(plain.PrintModeList), derived.printModes, "the print modes");
  if (plain.PrintModeList.GetSize() == 0) return 0;
  PlainResolutions(resources, plain.ResolutionList);
  RequireEqual(DumpResolutions(plain.ResolutionList), derived.resolutions, "the resolutions");
  PlainColorModes(resources, plain.ColorModeList);
  RequireEqual(DumpColorModes(plain.ColorModeList), derived.colorModes, "the colour modes");
  Require((result != 0) == (plain.ColorModeList.GetSize() > 0), "whether there is a document");
  if (result == 0) return 0;
  plain.ControlTreeRoot.Default = 1;
  CQDFNode* ink = AddChildNode(plain.ControlTreeRoot);
  ink->IDs.Add(1);
  ink->Default = FindIDByDisplayName("HP Proofing Gloss", plain.MediaList);
  for (int i = 0; i < resources.GetSize(); ++i) {
    GrowPlainly(*static_cast<HPResourceInfo*>(resources[i]), plain, ink);
  }
  RequireEqual(Derived(plain).tree, derived.tree, "the control tree");
  return 0;
}
