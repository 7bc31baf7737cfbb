// The derived tree against the one of the operations that walk lists and children, on random
// resources that have much in common.

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "qdf/control/nametable.h"
#include "qdf/core/documentmembers.h"
#include "qdf/hpimport/derivecolormodes.h"
#include "qdf/hpimport/derivecontroltree.h"
#include "qdf/hpimport/growingtree.h"
#include "tests/hpimport/resources.h"

namespace {

CQDFNode* AddLeaf(CQDFNode* parent) {
  CQDFNode* leaf = AddChildNode(*parent);
  leaf->Default = -1;
  return leaf;
}

// One resource's path, by the operations that walk a node's children and a list's names.
void GrowPlainly(HPResourceInfo& resource, DocumentMembers& lists, CQDFNode* ink,
                 DocumentMembers& grown) {
  ADWordArray ids;
  CollectMediaIDs(resource.MediaName, lists.MediaList, ids);
  CQDFNode* node = FindOrAddChild(ink, ids);
  node->Default = FindIDByDisplayName("Best", lists.PrintModeList);
  ids.SetSize(0, -1);
  for (const auto& mode : Records<PrintModeInfo>(lists.PrintModeList)) {
    if (resource.PrintQuality == Str(mode.DisplayName).c_str()) ids.Add(std::uint32_t(mode.ID));
  }
  node = FindOrAddChild(node, ids);
  ids.SetSize(0, -1);
  for (const auto& resolution : Records<ResolutionInfo>(lists.ResolutionList)) {
    if (resource.DisplayResolution == Str(resolution.DisplayName).c_str() &&
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
  if (file.GetLength() > 0) InternDefaultString(node, file, grown.OEMInfoList);
  CQDFNode* profile = AddLeaf(node);
  InternDefaultStringIfGiven(profile, resource.OutputICC, grown.ICCProfileList);
  if (resource.OutputICC.GetLength() > 0) {
    InternIDString(profile, resource.OutputICC, grown.ICCProfileList);
  }
  AString dither = std::to_string(resource.Algorithm + 100LL).c_str();
  int index = FindExactString(dither, grown.DitherNameList);
  if (index < 0) index = grown.DitherNameList.Add(dither);
  AddLeaf(node)->IDs.Add(std::uint32_t(index));
}

class Dice {
 public:
  explicit Dice(unsigned int seed) : engine_(seed) {}

  int Below(int count) { return static_cast<int>(engine_() % static_cast<unsigned int>(count)); }

  template <class Value>
  Value Of(const std::vector<Value>& values) {
    return values[static_cast<std::size_t>(Below(static_cast<int>(values.size())))];
  }

 private:
  std::mt19937 engine_;
};

const std::string full(256, 'x');

Resource RandomResource(Dice& dice) {
  const std::vector<std::string> names = {"A", "a", "B", full, full + "y", "HP Proofing Gloss"};
  const std::vector<double> numbers = {600, 600,  300,
                                       0.0, -0.0, std::numeric_limits<double>::quiet_NaN()};
  const std::vector<std::string> texts = {"", "t", "T", " t ", "Best"};
  Resource resource;
  resource.media = dice.Of(names);
  resource.displayNames.clear();
  for (int n = dice.Below(4); n > 0; --n) resource.displayNames.push_back(dice.Of(names));
  resource.customizable = dice.Below(2);
  resource.quality = dice.Of<std::string>(
      {"best", "BEST", "SuperBest", "fast", "Photo", "draft2", "normal", "premium"});
  resource.printQuality = dice.Of(texts);
  resource.resolution = dice.Of<std::string>({"600", "300"});
  resource.x = dice.Of(numbers);
  resource.format = dice.Of<std::string>({"KCMY", "KCMY", "KCcMmY", "RGB"});
  resource.black = dice.Below(3);
  resource.color = dice.Below(3);
  resource.profile = dice.Of(texts);
  resource.algorithm = dice.Of<int>({0, 1, std::numeric_limits<int>::max()});
  resource.file = dice.Of(texts);
  return resource;
}

// Ids that media of both kinds come to share make sets overlap that otherwise wouldn't.
std::string RandomOldMedia(Dice& dice) {
  std::string media = "10002=A/A";
  for (const char* id : {"10001", "10003", "3", "0", "-4", "2"}) {
    const auto name = [&] { return dice.Of<std::string>({"A", "a", "B", full}); };
    media += Join({";", id, "=", name(), "/", name()}, "");
  }
  return media;
}

TEST(Differential, AGrowingTreeFindsTheChildThatAWalkFinds) {
  for (unsigned int seed = 0; seed < 500; ++seed) {
    Dice dice(seed);
    std::vector<ADWordArray> sets(6);
    for (ADWordArray& ids : sets) {
      for (int n = dice.Below(14); n > 0; --n) ids.Add(std::uint32_t(dice.Below(60)));
    }
    CQDFNode walked;
    CQDFNode grown;
    GrowingTree tree;
    for (int i = 0; i < 20; ++i) {
      ADWordArray& ids = sets[static_cast<std::size_t>(dice.Below(6))];
      FindOrAddChild(FindOrAddChild(&walked, ids), ids);
      tree.FindOrAddChild(tree.FindOrAddChild(grown, ids), ids);
    }
    ASSERT_EQ(Dump(grown), Dump(walked)) << "seed " << seed;
  }
}

TEST(Differential, AControlTreeIsThatOfThePlainRules) {
  int grownTrees = 0;
  for (unsigned int seed = 0; seed < 200; ++seed) {
    SCOPED_TRACE(seed);
    Dice dice(seed);
    Resources resources;
    for (int n = 1 + dice.Below(25); n > 0; --n) AddTo(resources, RandomResource(dice));
    const auto old = Load({.MediaList = Entries(RandomOldMedia(dice))});
    const DocumentMembers former(*old);
    APMQDF document;
    if (document.LoadHPResourceInfo(resources, former.InkList, former.MediaList) == 0) continue;
    ++grownTrees;
    DocumentMembers derived(document);
    APMQDF other;
    DocumentMembers grown(other);
    CQDFNode ink;
    for (int i = 0; i < resources.GetSize(); ++i) {
      GrowPlainly(*static_cast<HPResourceInfo*>(resources[i]), derived, &ink, grown);
    }
    ink.IDs.Add(1);
    ink.Default = FindIDByDisplayName("HP Proofing Gloss", derived.MediaList);
    ASSERT_EQ(Dump(*ChildAt(derived.ControlTreeRoot, 0)), Dump(ink));
    ASSERT_EQ(Dump(derived.OEMInfoList), Dump(grown.OEMInfoList));
    ASSERT_EQ(Dump(derived.ICCProfileList), Dump(grown.ICCProfileList));
    ASSERT_EQ(Dump(derived.DitherNameList), Dump(grown.DitherNameList));
  }
  EXPECT_GT(grownTrees, 140);
}

}  // namespace
