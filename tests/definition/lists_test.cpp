// The lists of Definition and the numbers beside them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

#include "qdf/core/documentmembers.h"
#include "qdf/definition/mediasort.h"
#include "qdf/definition/readers.h"
#include "qdf/support/ownership.h"
#include "tests/documents.h"
#include "tests/trees.h"

namespace {

using Numbers = std::vector<double>;

std::unique_ptr<AXMLTree> ListTree(const std::string& list, const std::string& entries) {
  return TreeOf("<Any><Definition><" + list + ">" + entries + "</" + list + "><" + list +
                "><a><ID>99</ID></a></" + list + "></Definition><Definition/></Any>");
}

std::string Element(const std::string& name, const std::string& text) {
  return "<" + name + ">" + text + "</" + name + ">";
}

// What holds for every list. A colour mode needs a colorant and customizable media stay where the
// document has them; the others overlook these elements.
template <class Record>
void CheckList(const char* list, int (*read)(AXMLTree*, APtrArray&)) {
  SCOPED_TRACE(list);
  OwnedItems<Record> records;
  EXPECT_EQ(read(nullptr, records), 0);
  EXPECT_EQ(read(TreeOf("<a/>").get(), records), 0);
  EXPECT_EQ(read(TreeOf("<a><Definition/></a>").get(), records), 0);
  EXPECT_EQ(read(ListTree(list, " <!-- none --> ").get(), records), 0);
  EXPECT_EQ(records.GetSize(), 0);

  const auto entry = [](const std::string& name, const std::string& values) {
    return Element(name, "<ColorantList><c/></ColorantList>" + values +
                             "<IsCustomizableMedia>1</IsCustomizableMedia>");
  };
  const auto tree = ListTree(
      list, entry("x", "<ID>7</ID><DisplayName> first </DisplayName><ID>8</ID><id>9</id>") +
                "text" + entry("y", "<DisplayName>second</DisplayName>") +
                entry("x", "<ID> +7x</ID><DisplayName>dropped</DisplayName>") + entry("x", "") +
                entry("z", "<ID>-2</ID>") + entry("z", "<ID>99999999999</ID>"));
  EXPECT_EQ(read(tree.get(), records), 1);
  EXPECT_EQ(IDs(Records<Record>(records)), "7,0,-2,2147483647");
  EXPECT_EQ(Str(Records<Record>(records).at(0).DisplayName), " first ");
  EXPECT_EQ(Str(Records<Record>(records).at(1).DisplayName), "second");

  const auto more = ListTree(
      list, entry("x", "<ID>0</ID><DisplayName>late</DisplayName>") + entry("x", "<ID>3</ID>"));
  EXPECT_EQ(read(more.get(), records), 1);
  EXPECT_EQ(IDs(Records<Record>(records)), "7,0,-2,2147483647,3") << "what was there wins";
  EXPECT_EQ(Str(Records<Record>(records).at(1).DisplayName), "second");
  EXPECT_EQ(read(TreeOf("<a/>").get(), records), 1) << "the list still holds records";

  for (const std::size_t length : {255U, 256U, 300U}) {
    OwnedItems<Record> named;
    const std::string name = Element("DisplayName", std::string(length, 'd'));
    EXPECT_EQ(read(ListTree(list, entry("x", name)).get(), named), 1);
    EXPECT_EQ(Str(Records<Record>(named).at(0).DisplayName),
              std::string(std::min<std::size_t>(length, 256), 'd'));
  }
}

TEST(DefinitionLists, KeepTheFirstEntryOfAnID) {
  CheckList<InkTypeInfo>("InkList", ReadInkList);
  CheckList<PrintModeInfo>("PrintModeList", ReadPrintModeList);
  CheckList<ResolutionInfo>("ResolutionList", ReadResolutionList);
  CheckList<ColorModeInfo>("ColorModeList", ReadColorModeList);
  CheckList<MediaSizeInfo>("MediaSizeList", ReadMediaSizeList);
  CheckList<MarginInfo>("MarginInfoList", ReadMarginInfoList);
  CheckList<MediaSourceInfo>("MediaSourceList", ReadMediaSourceList);
  CheckList<MediaTypeInfo>("MediaList", ReadMediaList);
}

TEST(DefinitionLists, PutSizesAndMarginsIntoTheirFields) {
  const struct {
    const char* text;
    Numbers size;
    Numbers margins;
  } rows[] = {{"<Size>8.5,11</Size>", {8.5, 11}, {8.5, 11, 0, 0}},
              {"<Size> 8.5 11 </Size>", {8.5, 11}, {8.5, 11, 0, 0}},
              {"<Size>1 2,3, 4 5</Size><Size>9 9</Size>", {1, 2}, {1, 2, 3, 4}},
              {"<Size>5</Size>", {5, 0}, {5, 0, 0, 0}},
              {"<Size>1,x,3</Size>", {1, 0}, {1, 0, 0, 0}},
              {"<Size/>", {0, 0}, {0, 0, 0, 0}},
              {"<IsRoll>2</IsRoll><PCLid>-3x</PCLid>", {0, 0}, {0, 0, 0, 0}}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    OwnedItems<MediaSizeInfo> sizes;
    OwnedItems<MarginInfo> margins;
    const std::string entry =
        Element("x", std::string("<InternalName>n</InternalName>") + row.text);
    EXPECT_EQ(ReadMediaSizeList(ListTree("MediaSizeList", entry).get(), sizes), 1);
    EXPECT_EQ(ReadMarginInfoList(ListTree("MarginInfoList", entry).get(), margins), 1);
    const auto size = Records<MediaSizeInfo>(sizes).at(0);
    const auto margin = Records<MarginInfo>(margins).at(0);
    EXPECT_EQ((Numbers{size.FirstDimension, size.SecondDimension}), row.size);
    EXPECT_EQ(
        (Numbers{margin.FirstMargin, margin.SecondMargin, margin.ThirdMargin, margin.FourthMargin}),
        row.margins);
    const bool numbered = std::string(row.text).find("PCLid") != std::string::npos;
    EXPECT_EQ(size.PCLid, numbered ? -3 : 0);
    EXPECT_EQ(size.IsRoll, numbered ? 2 : 0);
    EXPECT_EQ(Str(margin.InternalName) + Str(size.InternalName), "nn");
  }
}

TEST(Definition, TurnsTheMinimumMarginsOnly) {
  const struct {
    const char* definition;
    Numbers limits;
    Numbers margins;
  } rows[] = {
      {"", {0, 0, 0, 0}, {0, 0, 0, 0}},
      {"<MinAndMaxMediaSize>1,2,3,4</MinAndMaxMediaSize>", {1, 2, 3, 4}, {0, 0, 0, 0}},
      {"<MinMarginSize>1 2 3 4</MinMarginSize>", {0, 0, 0, 0}, {3, 4, 1, 2}},
      {"<MinMarginSize>1 2 3 x</MinMarginSize><MinAndMaxMediaSize>-1.5</MinAndMaxMediaSize>",
       {-1.5, 0, 0, 0},
       {3, 0, 1, 2}}};
  for (const auto& row : rows) {
    const auto document = Load({.Definition = row.definition});
    Numbers got(4, 9.0);
    EXPECT_EQ(document->GetMediaSizeLimits(got[0], got[1], got[2], got[3]), 1);
    EXPECT_EQ(got, row.limits) << row.definition;
    EXPECT_EQ(document->GetMinimumMargin(got[0], got[1], got[2], got[3]), 1);
    EXPECT_EQ(got, row.margins) << row.definition;
  }
}

TEST(Definition, TakesTextsAsTheyAre) {
  const auto bare = Load({});
  EXPECT_EQ(bare->GetProdcutType() + bare->GetTranslationTable() + bare->GetCustomMediaFile(), "");
  const std::string longText(5000, 'p');
  const auto named = Load({.Definition = Element("ProductType", " " + longText + "\n") +
                                         "<CustomMediaFile>a<!-- -->b</CustomMediaFile>" +
                                         "<TranslationTable>t</TranslationTable><ProductType/>"});
  EXPECT_EQ(named->GetProdcutType(), (" " + longText + "\n").c_str());
  EXPECT_EQ(named->GetTranslationTable(), "t");
  EXPECT_EQ(named->GetCustomMediaFile(), "ab");
}

// A medium is swapped with each later one whose name is less in bytes, but not a customizable one.
void ExchangeSort(std::vector<MediaTypeInfo*>& media) {
  for (std::size_t i = 0; i < media.size(); ++i) {
    for (std::size_t j = i + 1; j < media.size(); ++j) {
      if (media[i]->IsCustomizableMedia != 0 || media[j]->IsCustomizableMedia != 0) continue;
      if (std::strncmp(media[i]->UnlocalizedName, media[j]->UnlocalizedName, 256) > 0) {
        std::swap(media[i], media[j]);
      }
    }
  }
}

TEST(MediaSort, LeavesThemAsAnExchangeSortDoes) {
  const std::string names[] = {"", "a", "A", "b", "ab", "\xE9", "[", std::string(256, 'x')};
  std::minstd_rand random(7);
  for (int round = 0; round < 300; ++round) {
    std::vector<MediaTypeInfo> media(random() % 40);
    std::vector<MediaTypeInfo*> sorted;
    APtrArray list;
    for (MediaTypeInfo& each : media) {
      SetField(each.UnlocalizedName, names[random() % std::size(names)]);
      each.IsCustomizableMedia = random() % 8 == 0 ? -1 : 0;
      list.Add(&each);
      sorted.push_back(&each);
    }
    SortMedia(list);
    ExchangeSort(sorted);
    for (std::size_t i = 0; i < sorted.size(); ++i) {
      ASSERT_EQ(list[static_cast<int>(i)], sorted[i]) << "round " << round << ", place " << i;
    }
  }
}

}  // namespace
