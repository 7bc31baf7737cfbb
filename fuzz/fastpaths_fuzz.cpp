// Where an index or a better algorithm replaced a plain loop: both are run and compared.

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
    const std::string name =
        std::string(choose.OneOf(kNames)) + choose.OneOf(kNames) + choose.Text(12);
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
    source.Add(choose.Below(32) << (choose.Below(4) * 8U));
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

struct Dither {
  std::string name, resolution;
};

// "name 600x300": a record, once for equal ones.
std::vector<std::string> PlainRecords(const std::vector<Dither>& dithers) {
  std::vector<std::string> records;
  for (const Dither& dither : dithers) {
    const std::size_t mark = dither.resolution.find_first_of("xX");
    const double x = std::atof(dither.resolution.substr(0, mark).c_str());
    const double y =
        mark != std::string::npos ? std::atof(dither.resolution.substr(mark + 1).c_str()) : x;
    if (dither.name.empty() || x <= 0 || y <= 0) continue;
    std::string record = dither.name.substr(0, 64) + " " + std::to_string(static_cast<int>(x)) +
                         "x" + std::to_string(static_cast<int>(y));
    if (std::find(records.begin(), records.end(), record) == records.end())
      records.push_back(std::move(record));
  }
  return records;
}

void ReadsDithersLikeALoop(Choices& choose) {
  std::vector<Dither> dithers(choose.Below(40));
  AXMLTree tree("DitherList");
  AXMLTreeNode list;
  tree.getRootNode(list);
  for (Dither& dither : dithers) {
    dither.name = std::string(choose.OneOf(kNames)) + std::string(choose.Chance(8) ? 64 : 0, 'n') +
                  choose.OneOf(kNames);
    dither.resolution =
        choose.OneOf({"600", "600.2x300", "600.9X300.5", "0", "0.5", "-1x600", "", "x", "300x600"});
    AXMLTreeNode element;
    tree.addChild(element, list, "Dither", "", -1);
    tree.setAttribute(element, "Name", dither.name.c_str());
    tree.setAttribute(element, "RipResolution", dither.resolution.c_str());
  }
  CQDFNode ditherNode;
  CQDFNode ripNode;
  AStringArray names;
  OwnedItems<DitherResolutionInfo> records;
  ReadDitherList(&ditherNode, &ripNode, &tree, list, names, records, " a ");
  std::vector<AString> plainNames{"a"};
  ADWordArray plainIDs;
  for (const Dither& dither : dithers) {
    if (dither.name.empty()) continue;
    const auto index =
        static_cast<std::uint32_t>(PlainIntern(plainNames, dither.name.c_str(), true));
    if (IsIDInArray(index, plainIDs) == 0) plainIDs.Add(index);
  }
  RequireEqual(Dump(plainNames), Dump(names), "the dithers' names");
  RequireEqual(Dump(plainIDs), Dump(ditherNode.IDs), "the dithers of a colour mode");
  std::vector<std::string> read;
  for (const auto& each : Records<DitherResolutionInfo>(records)) {
    read.push_back(Str(each.Name) + " " + std::to_string(static_cast<int>(each.XResolution)) + "x" +
                   std::to_string(static_cast<int>(each.YResolution)));
  }
  RequireEqual(Join(PlainRecords(dithers), "|"), Join(read, "|"), "the dithers' resolutions");
  Require(ripNode.IDs.GetSize() == records.GetSize(), "each record belongs to the colour mode");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Choices choose(TextOf(data, size));
  SortsLikeTheExchangeSort(choose);
  MergesLikeALoop(choose);
  GrowsLikeAWalk(choose);
  InternsLikeALoop(choose);
  ReadsDithersLikeALoop(choose);
  return 0;
}
