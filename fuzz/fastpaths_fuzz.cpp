// Where an index or a better algorithm replaced a plain loop: both are run and compared.

#include <cmath>
#include <memory>
#include <vector>

#include "fuzz/fuzzing.h"
#include "qdf/control/ditherlist.h"
#include "qdf/control/nametable.h"
#include "qdf/core/qdfnode.h"
#include "qdf/definition/mediasort.h"
#include "qdf/definition/records.h"
#include "qdf/hpimport/derivecontroltree.h"
#include "qdf/hpimport/growingtree.h"
#include "qdf/query/treewalk.h"
#include "qdf/support/ownership.h"
#include "tests/documents.h"

namespace {

constexpr const char* kNames[] = {"",     "a", "A",  "b",   "ab", "aB", "\xE9",
                                  "\xC9", "c", "ca", "a b", "Z",  "[",  "{"};

void SortsLikeTheExchangeSort(Choices& choose) {
  std::vector<MediaTypeInfo> media(choose.Below(40));
  APtrArray fast;
  std::vector<MediaTypeInfo*> plain;
  for (MediaTypeInfo& each : media) {
    each = {};
    SetField(each.UnlocalizedName, choose.OneOf(kNames));
    if (choose.Chance(8)) SetField(each.UnlocalizedName, std::string(256, 'x'));
    each.IsCustomizableMedia = choose.Chance(8) ? 1 : 0;
    fast.Add(&each);
    plain.push_back(&each);
  }
  for (std::size_t i = 0; i < plain.size(); ++i) {
    for (std::size_t j = i + 1; j < plain.size(); ++j) {
      if (plain[i]->IsCustomizableMedia != 0 || plain[j]->IsCustomizableMedia != 0) continue;
      if (std::strncmp(plain[i]->UnlocalizedName, plain[j]->UnlocalizedName, 256) > 0)
        std::swap(plain[i], plain[j]);
    }
  }
  SortMedia(fast);
  for (std::size_t i = 0; i < plain.size(); ++i) {
    Require(fast[static_cast<int>(i)] == plain[i], "media are sorted as an exchange sort does");
  }
}

int PlainIntern(std::vector<AString>& names, const AString& name, bool exact) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    const int difference = exact ? names[i].Compare(name) : names[i].CompareNoCase(name);
    if (difference == 0) return static_cast<int>(i);
  }
  names.push_back(name);
  return static_cast<int>(names.size()) - 1;
}

void InternsLikeALoop(Choices& choose) {
  const bool exact = choose.Chance(2);
  AStringArray fast;
  std::vector<AString> plain;
  for (unsigned int i = choose.Below(3); i > 0; --i) {
    fast.Add("a");  // a list may hold equal names before: the first counts
    plain.push_back("a");
  }
  NameTable table(fast, exact ? NameCase::Exact : NameCase::Ignored);
  for (unsigned int i = choose.Below(60); i > 0; --i) {
    std::string name = choose.OneOf(kNames);
    name += choose.OneOf(kNames);
    name += choose.Text(12);
    Require(table.Intern(name) == PlainIntern(plain, name.c_str(), exact), "a name gets its index");
  }
  RequireEqual(Dump(plain), Dump(fast), "the names");
}

void MergesLikeALoop(Choices& choose) {
  ADWordArray target;
  ADWordArray source;
  for (unsigned int i = choose.Below(30); i > 0; --i) target.Add(choose.Below(16));
  for (unsigned int i = choose.Below(50); i > 0; --i) {
    // Equal in all low bits, so that they crowd the same slots.
    const unsigned int number = choose.Below(32);
    source.Add(number << (choose.Below(4) * 8U));
  }
  ADWordArray plain(target);
  for (const std::uint32_t id : source) {
    if (std::find(plain.begin(), plain.end(), id) == plain.end()) plain.Add(id);
  }
  MergeIDArray(target, source);
  RequireEqual(Dump(plain), Dump(target), "merged ids");
}

// The sets overlap, and a set is met again when its child has grown by others.
void GrowsLikeAWalk(Choices& choose) {
  std::vector<ADWordArray> sets(6);
  for (ADWordArray& ids : sets) {
    for (unsigned int i = choose.Below(14); i > 0; --i) ids.Add(choose.Below(60));
  }
  CQDFNode walked;
  CQDFNode grown;
  GrowingTree tree;
  for (int i = 0; i < 20; ++i) {
    ADWordArray& ids = sets[choose.Below(6)];
    FindOrAddChild(FindOrAddChild(&walked, ids), ids);
    tree.FindOrAddChild(tree.FindOrAddChild(grown, ids), ids);
  }
  RequireEqual(Dump(walked), Dump(grown), "a growing tree");
}

// Some ids are negative, some equal in all low bits.
std::uint32_t PathID(unsigned int number) { return number % 4 == 3 ? number << 24U : number - 2; }

// Children of which many share ids, and of which a few have children again.
void AddRow(Choices& choose, CQDFNode& parent, int levels) {
  const unsigned int count = choose.OneOf({1U, 3U, 63U, 64U, 65U, 100U});
  const unsigned int step = choose.Below(8) + 1;
  const unsigned int different = choose.Below(80) + 1;
  const unsigned int few = choose.Below(3) + 1;
  for (unsigned int i = 0; i < count; ++i) {
    ADWordArray ids;
    for (const unsigned int number : {i * step, i + step}) ids.Add(PathID(number % different));
    CQDFNode* child = AddChildNode(parent, ids);
    if (levels > 1 && i < few * step && i % step == 0) AddRow(choose, *child, levels - 1);
  }
}

void FindsPathsLikeAWalk(Choices& choose) {
  CQDFNode root;
  AddRow(choose, root, 3);
  const ChildIndexes indexes(root);
  const auto compare = [&](std::initializer_list<int> ids) {
    Require(FindPath(root, ids, &indexes) == FindPath(root, ids), "the end of a path");
  };
  const unsigned int shift = choose.Below(16);
  for (unsigned int i = 0; i < 82; ++i) {
    const auto first = static_cast<int>(PathID(i));
    const auto second = static_cast<int>(PathID((i + shift) % 16));
    compare({first});
    compare({first, second});
    compare({first, second, static_cast<int>(PathID(i % 16))});
  }
}

struct Dither {
  std::string name, resolution;
};
struct DitherList {
  std::string supportAll, preselected;
  std::vector<Dither> dithers;
};

constexpr const char* kResolutions[] = {"600", "600.2x300", "600.9X300.5", "0",      "0.5",
                                        "",    "-1x600",    "x",           "300x600"};
constexpr const char* kSupportAll[] = {"0", "", "1", "-1", " 2x"};
constexpr const char* kPreselected[] = {"a", " a ", "", " ", "A"};

std::string DitherName(Choices& choose) {
  const std::string begin = choose.OneOf(kNames);
  const std::string middle(choose.Chance(8) ? 64 : 0, 'n');
  return begin + middle + choose.OneOf(kNames);
}

// Lists of which many repeat the one before, or differ from it in one thing.
std::vector<DitherList> ChooseLists(Choices& choose) {
  DitherList list;
  list.dithers.resize(choose.Below(20) + 1);
  for (Dither& dither : list.dithers) {
    dither.name = DitherName(choose);
    dither.resolution = choose.OneOf(kResolutions);
  }
  std::vector<DitherList> lists{list};
  for (unsigned int i = choose.Below(12); i > 0; --i) {
    const auto place = choose.Below(static_cast<unsigned int>(list.dithers.size()));
    switch (choose.Below(6)) {
      case 0:
        list.dithers[place].name = DitherName(choose);
        break;
      case 1:
        list.dithers[place].resolution = choose.OneOf(kResolutions);
        break;
      case 2:
        list.dithers.resize(place + 1);
        break;
      case 3:
        list.supportAll = choose.OneOf(kSupportAll);
        break;
      default:
        list.preselected = choose.OneOf(kPreselected);
    }
    lists.push_back(list);
  }
  return lists;
}

// The ColorMode elements of the lists.
std::vector<AXMLTreeNode> AddElements(AXMLTree& tree, const std::vector<DitherList>& lists) {
  AXMLTreeNode root;
  tree.getRootNode(root);
  std::vector<AXMLTreeNode> elements;
  for (const DitherList& each : lists) {
    AXMLTreeNode& colorMode = elements.emplace_back();
    AXMLTreeNode list;
    AXMLTreeNode element;
    tree.addChild(colorMode, root, "ColorMode", "", -1);
    tree.setAttribute(colorMode, "DefaultDither", each.preselected.c_str());
    tree.addChild(list, colorMode, "DitherList", "", -1);
    tree.setAttribute(list, "SupportAll", each.supportAll.c_str());
    for (const Dither& dither : each.dithers) {
      tree.addChild(element, list, "Dither", "", -1);
      tree.setAttribute(element, "Name", dither.name.c_str());
      tree.setAttribute(element, "RipResolution", dither.resolution.c_str());
    }
  }
  return elements;
}

// "1,2>0 5,6": a colour mode's dithers, the default and the records.
std::string DumpLeaves(const ADWordArray& dithers, int preselected, const ADWordArray& records) {
  return Dump(dithers) + ">" + std::to_string(preselected) + " " + Dump(records);
}
std::string DumpLeaves(const CQDFNode& ditherNode, const CQDFNode& ripNode) {
  return DumpLeaves(ditherNode.IDs, ditherNode.Default, ripNode.IDs);
}

// "owner name x y"
std::string DumpRecord(std::size_t owner, const std::string& name, double x, double y) {
  return Join({std::to_string(owner), name, std::to_string(x), std::to_string(y)}, " ");
}
std::string DumpRecords(const APtrArray& list, const std::vector<const CQDFNode*>& owners) {
  std::vector<std::string> texts;
  for (const auto& each : Records<DitherResolutionInfo>(list)) {
    const auto owner = std::find(owners.begin(), owners.end(), each.OwnerNode) - owners.begin();
    texts.push_back(DumpRecord(static_cast<std::size_t>(owner), Str(each.Name), each.XResolution,
                               each.YResolution));
  }
  return Join(texts, "|");
}

// Reads each list alone and with loops.
struct PlainDithers {
  std::string Read(const DitherList& list, std::size_t owner) {
    const std::string preselected(Trimmed(list.preselected));
    const int index = preselected.empty() ? -1 : PlainIntern(names, preselected.c_str(), true);
    ADWordArray dithers;
    ADWordArray recordIDs;
    std::vector<std::string> known;
    for (const auto& [name, resolution] : list.dithers) {
      if (name.empty()) continue;
      if (std::atoi(list.supportAll.c_str()) <= 0) {
        const auto id = static_cast<std::uint32_t>(PlainIntern(names, name.c_str(), true));
        if (IsIDInArray(id, dithers) == 0) dithers.Add(id);
      }
      const std::size_t mark = resolution.find_first_of("xX");
      const double x = std::atof(resolution.substr(0, mark).c_str());
      const double y =
          mark != std::string::npos ? std::atof(resolution.substr(mark + 1).c_str()) : x;
      const std::string field = name.substr(0, 64);
      const std::string whole = DumpRecord(owner, field, std::floor(x), std::floor(y));
      const bool isNew = std::find(known.begin(), known.end(), whole) == known.end();
      if (x <= 0 || y <= 0 || !isNew) continue;
      known.push_back(whole);
      recordIDs.Add(static_cast<std::uint32_t>(records.size()));
      records.push_back(DumpRecord(owner, field, x, y));
    }
    return DumpLeaves(dithers, index, recordIDs);
  }

  std::vector<AString> names;
  std::vector<std::string> records;
};

// One reader for all lists.
void AddsLeavesLikeALoop(const std::vector<DitherList>& lists) {
  AXMLTree tree("ColorModes");
  const std::vector<AXMLTreeNode> elements = AddElements(tree, lists);
  PlainDithers plain;
  AStringArray names;
  APtrArray records;
  DitherResolutionBlocks blocks;
  DitherListReader reader(tree, names, records, &blocks);
  std::vector<CQDFNode> colorModes(lists.size());
  std::vector<const CQDFNode*> owners;
  for (std::size_t i = 0; i < lists.size(); ++i) {
    reader.AddLeaves(colorModes[i], elements[i]);
    owners.push_back(ChildAt(colorModes[i], 1));
    RequireEqual(plain.Read(lists[i], i), DumpLeaves(*ChildAt(colorModes[i], 0), *owners[i]),
                 "the leaves of adjacent lists");
  }
  RequireEqual(Dump(plain.names), Dump(names), "the dithers' names");
  RequireEqual(Join(plain.records, "|"), DumpRecords(records, owners), "the resolutions");
}

// A reader for each list, which fills leaves that it has filled before.
void ReadsDithersLikeALoop(const std::vector<DitherList>& lists) {
  AXMLTree tree("ColorModes");
  const std::vector<AXMLTreeNode> elements = AddElements(tree, lists);
  PlainDithers plain;
  AStringArray names;
  OwnedItems<DitherResolutionInfo> records;
  std::vector<CQDFNode> ripNodes(lists.size());
  std::vector<const CQDFNode*> owners;
  for (std::size_t i = 0; i < lists.size(); ++i) {
    const std::string expected = plain.Read(lists[i], i);
    CQDFNode ditherNode;
    ditherNode.Default = -1;
    owners.push_back(&ripNodes[i]);
    AXMLTreeNode list;
    tree.getChild("DitherList", elements[i], list);
    for (int times = 1; times <= 2; ++times) {
      ReadDitherList(&ditherNode, &ripNodes[i], &tree, list, names, records,
                     lists[i].preselected.c_str());
      RequireEqual(expected, DumpLeaves(ditherNode, ripNodes[i]), "the leaves of a list");
    }
  }
  RequireEqual(Dump(plain.names), Dump(names), "the dithers' names of single lists");
  RequireEqual(Join(plain.records, "|"), DumpRecords(records, owners),
               "the resolutions of single lists");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Choices choose(TextOf(data, size));
  FindsPathsLikeAWalk(choose);
  SortsLikeTheExchangeSort(choose);
  MergesLikeALoop(choose);
  GrowsLikeAWalk(choose);
  InternsLikeALoop(choose);
  const std::vector<DitherList> lists = ChooseLists(choose);
  AddsLeavesLikeALoop(lists);
  ReadsDithersLikeALoop(lists);
  return 0;
}
