// What a document derived from HP resources holds: its lists, their ids, and its control tree.

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <memory_resource>
#include <random>

#include "qdf/hpimport/derivecontroltree.h"
#include "qdf/hpimport/growingtree.h"
#include "tests/hpimport/derived.h"
#include "tests/hpimport/resources.h"

namespace {

// A document derived from the resources, with the inks and media of a previous one.
std::unique_ptr<APMQDF> Derive(const std::vector<Resource>& resources, DocumentText previous = {},
                               int result = 1) {
  Resources records;
  for (const Resource& resource : resources) AddTo(records, resource);
  const auto old = Load(previous);
  DocumentMembers former(*old);
  auto document = std::make_unique<APMQDF>();
  EXPECT_EQ(document->LoadHPResourceInfo(records, former.InkList, former.MediaList), result);
  return document;
}

Derived All(const std::vector<Resource>& resources, const DocumentText& previous = {}) {
  return Derived(DocumentMembers(*Derive(resources, previous)));
}

std::string Media(const std::vector<Resource>& resources, const std::string& old = "99=other",
                  const std::string& more = {}) {
  return All(resources, {.MediaList = Entries(old, more)}).media;
}

std::string Tree(const std::vector<Resource>& resources, const DocumentText& previous = {}) {
  return All(resources, previous).tree;
}

TEST(DeriveMedia, KeepTheirIdsByBothNamesAndAreNumberedOnByKind) {
  EXPECT_EQ(Media({{.displayNames = {"a", "b", "a"}}, {.quality = "draft", .displayNames = {"b"}}}),
            "1=Glossy/a;2=Glossy/b");
  EXPECT_EQ(Media({{}, {.media = "glossy"}, {.displayNames = {"gloss"}}}),
            "1=Glossy/Gloss;2=glossy/Gloss;3=Glossy/gloss");
  // The first resource of a pair says whether it is customisable.
  EXPECT_EQ(Media({{.customizable = 1}, {}, {.media = "B"}, {.media = "C", .customizable = 5}}),
            "1=B/Gloss;10001=Glossy/Gloss*;10002=C/Gloss*");
  const std::vector<Resource> five = {{.media = "A"},
                                      {},
                                      {.media = "N"},
                                      {.media = "N2", .customizable = 1},
                                      {.media = "Old", .customizable = 1}};
  EXPECT_EQ(Media(five, "7=Gloss/Glossy;10007=Gloss/Old;50=Gone/Glossy;60=Gloss/Gone"),
            "7=Glossy/Gloss;8=A/Gloss;9=N/Gloss;10007=Old/Gloss*;10008=N2/Gloss*");
  // The kind is that of the new media: an id of the other kind weighs with its counter.
  EXPECT_EQ(Media({{}, {.media = "N"}}, "10007=Gloss/Glossy",
                  "<IsCustomizableMedia>1</IsCustomizableMedia>"),
            "10007=Glossy/Gloss;10008=N/Gloss");
  EXPECT_EQ(Media({{.customizable = 1}, {.media = "N", .customizable = 1}, {.media = "P"}},
                  "7=Gloss/Glossy"),
            "1=P/Gloss;7=Glossy/Gloss*;10001=N/Gloss*");
  // 0 is no id; equal ids of both kinds stand one behind the other.
  EXPECT_EQ(Media({{}, {.media = "N", .customizable = 1}, {.media = "O"}}, "0=Gloss/Glossy"),
            "1=Glossy/Gloss;2=O/Gloss;10001=N/Gloss*");
  EXPECT_EQ(Media({{.media = "N", .customizable = 1}, {}}, "10001=Gloss/Glossy"),
            "10001=N/Gloss*;10001=Glossy/Gloss");
  // Of old media with equal names the first counts.
  EXPECT_EQ(Media({{}}, "9=Gloss/Glossy;7=Gloss/Glossy"), "9=Glossy/Gloss");
  EXPECT_EQ(Media({{}, {.media = "N", .customizable = 1}}, "-5=Gloss/Glossy"),
            "-5=Glossy/Gloss;10001=N/Gloss*");
}

TEST(Derivation, CountsNamesWithAsManyCharactersAsAFieldHolds) {
  const std::string full(256, 'x');
  const Derived cut = All({{.printQuality = full + "1", .resolution = full + "1"},
                           {.printQuality = full + "2", .resolution = full + "2"}});
  EXPECT_EQ(cut.printModes, "1=best/" + full);
  EXPECT_EQ(cut.resolutions, "1=" + full + "/600x600");
  EXPECT_EQ(Media({{.media = full, .displayNames = {full + "1", full + "2"}},
                   {.media = full + "3", .displayNames = {full}}},
                  "7=" + full + "/" + full),
            "7=" + full + "/" + full);
}

TEST(DeriveMedia, FailWhenNoNumberIsLeft) {
  const DocumentText previous{.MediaList = Entries("2147483647=Gloss/Glossy")};
  EXPECT_EQ(All({{}}, previous).media, "2147483647=Glossy/Gloss");
  const auto failed = Derive({{}, {.media = "New"}}, previous, 0);
  EXPECT_EQ(DocumentMembers(*failed).MediaList.GetSize(), 0);
}

TEST(DerivePrintModes, AreNumberedByQuality) {
  EXPECT_EQ(All({{.quality = "draft"},
                 {.quality = "superbest"},
                 {.quality = "BEST"},
                 {.quality = "best"},
                 {.quality = "best", .printQuality = "best"},
                 {.quality = "Fastest"},
                 {.quality = "normal2", .printQuality = "N"},
                 {.quality = "normal1", .printQuality = "N"},
                 {.quality = "Photo"},
                 {.quality = "my best"},
                 {.quality = "bes"},
                 {.quality = "premium"}})
                .printModes,
            "1=premium/Best;2=superbest/Best;3=BEST/Best;4=best/best;5=normal2/N;6=normal1/N;"
            "7=Fastest/Best;8=draft/Best");
}

TEST(DeriveResolutions, AreToldApartByNameAndExactNumbers) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const std::vector<Resource> resources = {{},          {.resolution = "6"}, {},
                                           {.y = 300},  {.x = 600.0000001},  {.x = 0.0},
                                           {.x = -0.0}, {.x = none},         {.x = none}};
  EXPECT_EQ(All(resources).resolutions,
            "1=600/600x600;2=6/600x600;3=600/600x300;4=600/600x600;5=600/0x600;6=600/nanx600;"
            "7=600/nanx600");
}

TEST(DeriveColorModes, AreMadeOnceForALayoutAndADepth) {
  const std::string first = "1=CMYK/No(Cyan 2,Magenta 2,Yellow 2,Black 1);2=Gray Scale/Yes(Gray 1)";
  EXPECT_EQ(All({{}, {}}).colorModes, first);
  EXPECT_EQ(All({{}, {.format = "KCcMmY"}}).colorModes,
            first + ";3=CMYKLcLm/No(Cyan 2,Magenta 2,Yellow 2,Black 1,LCyan 2,LMagenta 2)");
  // The depth of black makes a grey mode only.
  EXPECT_EQ(All({{}, {.black = 3}}).colorModes, first + ";3=Gray Scale/Yes(Gray 3)");
  EXPECT_EQ(All({{}, {.color = 4}}).colorModes,
            first + ";3=CMYK/No(Cyan 4,Magenta 4,Yellow 4,Black 1)");
  // Other layouts give nothing, and later resources are read as usual.
  EXPECT_EQ(All({{.format = "kcmy"}, {.format = "CMYK"}, {.format = ""}, {}}).colorModes, first);
}

TEST(Derivation, CountsWhatTheListsHoldAlready) {
  Resources resources;
  AddTo(resources, {});
  const auto previous = Load({});
  DocumentMembers former(*previous);
  APMQDF document;
  for (int i = 0; i < 2; ++i)
    EXPECT_EQ(document.LoadHPResourceInfo(resources, former.InkList, former.MediaList), 1);
  const Derived derived{DocumentMembers(document)};
  EXPECT_EQ(derived.media, "1=Glossy/Gloss;1=Glossy/Gloss");
  EXPECT_EQ(derived.resolutions, "1=600/600x600");
  EXPECT_EQ(derived.colorModes,
            "1=CMYK/No(Cyan 2,Magenta 2,Yellow 2,Black 1);2=Gray Scale/Yes(Gray 1)");
}

TEST(Derivation, TakesNoMemoryFromWhatTheHostMadeTheDefault) {
  std::pmr::set_default_resource(std::pmr::null_memory_resource());
  EXPECT_EQ(All({{}}).media, "1=Glossy/Gloss");
  std::pmr::set_default_resource(nullptr);
}

TEST(DeriveTree, GivesEachResourceAPath) {
  EXPECT_EQ(Tree({{}}), ">1[1>1[1>1[1[1[1,2[0;0>-1]]]]]] f.xml p.icc 101");
  EXPECT_EQ(Tree({{.profile = ""}}), ">1[1>1[1>1[1[1[1,2[>-1;0>-1]]]]]] f.xml  101");
  // All names of a media in one node; below the first ink only; defaults by display name.
  EXPECT_EQ(Tree({{.displayNames = {"a", "HP Proofing Gloss"}, .printQuality = "BEST"},
                  {.quality = "draft", .displayNames = {"a"}, .file = "g.xml"}},
                 {.InkList = Entries("5;6")}),
            ">5[5>2[1,2>2[1[1[1,2[0;0>-1]]];2[1[1,2>1[0;0>-1]]]]]] f.xml|g.xml p.icc 101");
  // Qualities with one print quality share a node, media never.
  EXPECT_EQ(Tree({{}, {.quality = "draft"}, {.media = "B"}}),
            ">1[1>1[1>1[1,2[1[1,2[0;0>-1;0;0>-1]]]];2>1[1,2[1[1,2[0;0>-1]]]]]] f.xml p.icc 101");
  // Names are the same in another case, and files without the blanks around them.
  EXPECT_EQ(Tree({{}, {.quality = "draft", .profile = "P.ICC", .file = " F.XML "}}),
            ">1[1>1[1>1[1,2[1[1,2[0;0>-1;0;0>-1]]]]]] f.xml p.icc 101");
  EXPECT_EQ(Tree({{}, {.media = "B", .color = 3}}),
            ">1[1>1[1>1[1[1[1,2[0;0>-1]]]];2>1[1[1[2,3[0;0>-1]]]]]] f.xml p.icc 101");
  // Two colour modes that share their grey one share a node, the earlier one first.
  EXPECT_EQ(Tree({{}, {.color = 3}, {.black = 4, .color = 5}, {.black = 4}}),
            ">1[1>1[1>1[1[1[1,2,3,5[0;0>-1;0;0>-1;0;0>-1];4,5[0;0>-1]]]]]] f.xml p.icc 101");
}

TEST(Derivation, EndsAtTheFirstStepThatGivesNothing) {
  const std::pair<std::vector<Resource>, const char*> rows[] = {
      {{}, "|||"},
      {{{.displayNames = {}}}, "|||"},
      {{{.quality = "Photo"}}, "1=Glossy/Gloss|||"},
      {{{.format = ""}}, "1=Glossy/Gloss|1=best/Best|1=600/600x600|"}};
  for (const auto& [resources, lists] : rows) {
    const Derived derived{DocumentMembers(*Derive(resources, {}, 0))};
    EXPECT_EQ(
        Join({derived.media, derived.printModes, derived.resolutions, derived.colorModes}, "|"),
        lists);
    EXPECT_EQ(derived.tree, "   ");
  }
  Resources resources;
  AddTo(resources, {});
  APtrArray none;
  APMQDF withoutInks;
  EXPECT_EQ(withoutInks.LoadHPResourceInfo(resources, none, none), 0);
  EXPECT_EQ(DocumentMembers(withoutInks).MediaList.GetSize(), 0);
}

// The sets overlap, most are small in half of the trees, some repeat few ids, and a set is met
// again when its child has grown by others.
TEST(DeriveTree, GrowsFastAsAWalkDoes) {
  std::minstd_rand random(7);
  for (int tree = 0; tree < 400; ++tree) {
    const bool isSmall = tree < 200;
    std::vector<ADWordArray> sets(12);
    for (ADWordArray& ids : sets) {
      const auto first = random();
      const auto different = 1 + random() % (isSmall ? 2 : 14);
      const auto count = isSmall && random() % 4 != 0 ? 1 + random() % 2 : random() % 14;
      for (auto i = count; i > 0; --i) {
        ids.Add(static_cast<std::uint32_t>((first + random() % different) % (isSmall ? 8 : 40)));
      }
    }
    CQDFNode walked;
    CQDFNode grown;
    GrowingTree growing;
    for (int i = 0; i < 60; ++i) {
      ADWordArray& ids = sets[random() % sets.size()];
      FindOrAddChild(FindOrAddChild(&walked, ids), ids);
      growing.FindOrAddChild(growing.FindOrAddChild(grown, ids), ids);
      ASSERT_EQ(Dump(grown), Dump(walked)) << tree << ' ' << i;
    }
  }
}

TEST(DeriveTree, FindsNodesByAnySharedIdAndMediaByInternalName) {
  const auto ids = [](std::initializer_list<std::uint32_t> words) {
    ADWordArray array;
    for (const std::uint32_t word : words) array.Add(word);
    return array;
  };
  CQDFNode parent;
  for (ADWordArray wanted : {ids({1}), ids({2}), ids({3, 2}), ids({}), ids({2, 1}), ids({2, 4})}) {
    FindOrAddChild(&parent, wanted);
  }
  EXPECT_EQ(Dump(parent), "[1,2,4;2,3;]");
  const auto document = Load({.MediaList = Entries("3=b/A;2=c/A;4=b/B;5=b/a")});
  ADWordArray found = ids({9});
  CollectMediaIDs("A", DocumentMembers(*document).MediaList, found);
  EXPECT_EQ(Dump(found), "9,3,2");
}

}  // namespace
