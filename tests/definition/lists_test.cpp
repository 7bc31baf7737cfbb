// The lists of Definition and the numbers beside them.

#include <gtest/gtest.h>

#include "qdf/core/documentmembers.h"
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
                "text" + entry("y", Element("DisplayName", std::string(300, 'd'))) +
                entry("x", "<ID> +7x</ID><DisplayName>dropped</DisplayName>") + entry("x", "") +
                entry("z", "<ID>-2</ID>") + entry("z", "<ID>99999999999</ID>"));
  EXPECT_EQ(read(tree.get(), records), 1);
  EXPECT_EQ(IDs(Records<Record>(records)), "7,0,-2,2147483647");
  EXPECT_EQ(Str(Records<Record>(records).at(0).DisplayName), " first ");
  EXPECT_EQ(Str(Records<Record>(records).at(1).DisplayName), std::string(256, 'd'));

  const auto more = ListTree(
      list, entry("x", "<ID>0</ID><DisplayName>late</DisplayName>") + entry("x", "<ID>3</ID>"));
  EXPECT_EQ(read(more.get(), records), 1);
  EXPECT_EQ(IDs(Records<Record>(records)), "7,0,-2,2147483647,3") << "what was there wins";
  EXPECT_EQ(Str(Records<Record>(records).at(1).DisplayName), std::string(256, 'd'));
  EXPECT_EQ(read(TreeOf("<a/>").get(), records), 1) << "the list still holds records";
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
  const std::pair<std::string, Numbers> rows[] = {
      {"<Size>8.5,11</Size>", {8.5, 11, 0, 0}},
      {"<Size> 8.5 11 </Size>", {8.5, 11, 0, 0}},
      {"<Size>1 2,3, 4 5</Size><Size>9 9</Size>", {1, 2, 3, 4}},
      {"<Size>5</Size>", {5, 0, 0, 0}},
      {"<Size>1,x,3</Size>", {1, 0, 0, 0}},
      {"<Size/>", {0, 0, 0, 0}},
      {"", {0, 0, 0, 0}}};
  for (const auto& [text, numbers] : rows) {
    OwnedItems<MediaSizeInfo> sizes;
    OwnedItems<MarginInfo> margins;
    const std::string entry =
        Element("x", "<InternalName>n</InternalName><IsRoll>2</IsRoll><PCLid>-3x</PCLid>" + text);
    EXPECT_EQ(ReadMediaSizeList(ListTree("MediaSizeList", entry).get(), sizes), 1);
    EXPECT_EQ(ReadMarginInfoList(ListTree("MarginInfoList", entry).get(), margins), 1);
    const auto size = Records<MediaSizeInfo>(sizes).at(0);
    const auto margin = Records<MarginInfo>(margins).at(0);
    EXPECT_EQ((Numbers{size.FirstDimension, size.SecondDimension}),
              (Numbers{numbers[0], numbers[1]}))
        << text;
    EXPECT_EQ(
        (Numbers{margin.FirstMargin, margin.SecondMargin, margin.ThirdMargin, margin.FourthMargin}),
        numbers)
        << text;
    EXPECT_EQ(std::pair(size.PCLid, size.IsRoll), std::pair(-3, 2));
    EXPECT_EQ(Str(margin.InternalName) + Str(size.InternalName), "nn");
  }
}

TEST(Definition, TakesTextsAsTheyAreAndTurnsTheMinimumMargins) {
  const std::string text = " " + std::string(5000, 'p') + "\n";
  const struct {
    std::string definition, texts;
    Numbers limits, margins;
  } rows[] = {{"", "||", {0, 0, 0, 0}, {0, 0, 0, 0}},
              {Element("ProductType", text) +
                   "<CustomMediaFile>a<!-- -->b</CustomMediaFile><ProductType/>"
                   "<TranslationTable>t</TranslationTable>"
                   "<MinMarginSize>1 2 3 x</MinMarginSize><MinAndMaxMediaSize>-1.5"
                   "</MinAndMaxMediaSize>",
               text + "|t|ab",
               {-1.5, 0, 0, 0},
               {3, 0, 1, 2}},
              {"<MinAndMaxMediaSize>1,2,3,4</MinAndMaxMediaSize>"
               "<MinMarginSize>1 2 3 4</MinMarginSize>",
               "||",
               {1, 2, 3, 4},
               {3, 4, 1, 2}}};
  for (const auto& row : rows) {
    const auto document = Load({.Definition = row.definition});
    EXPECT_EQ(Dump({document->GetProdcutType(), document->GetTranslationTable(),
                    document->GetCustomMediaFile()}),
              row.texts);
    Numbers got(4, 9.0);
    EXPECT_EQ(document->GetMediaSizeLimits(got[0], got[1], got[2], got[3]), 1);
    EXPECT_EQ(got, row.limits);
    EXPECT_EQ(document->GetMinimumMargin(got[0], got[1], got[2], got[3]), 1);
    EXPECT_EQ(got, row.margins);
  }
}

}  // namespace
