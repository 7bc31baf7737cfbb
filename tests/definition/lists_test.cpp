// The lists of Definition and the numbers beside them.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

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

template <class Record>
Record First(const APtrArray& list) {
  return Records<Record>(list).at(0);
}

// Fields of 256 characters end in zeros only when there is room for one.
TEST(DefinitionLists, CutNamesAtTheirFields) {
  for (const std::size_t length : {0U, 255U, 256U, 300U}) {
    const std::string entry = Element("x", Element("InternalName", std::string(length, 'i')) +
                                               Element("DisplayName", std::string(length, 'd')) +
                                               "<ID>1</ID><ColorantList><c/></ColorantList>");
    const auto document = Load({.InkList = entry,
                                .MediaList = entry,
                                .PrintModeList = entry,
                                .ResolutionList = entry,
                                .ColorModeList = entry});
    ASSERT_NE(document, nullptr);
    const DocumentMembers members(*document);
    const auto ink = First<InkTypeInfo>(members.InkList);
    const auto media = First<MediaTypeInfo>(members.MediaList);
    const auto mode = First<PrintModeInfo>(members.PrintModeList);
    const auto resolution = First<ResolutionInfo>(members.ResolutionList);
    const auto color = First<ColorModeInfo>(members.ColorModeList);
    const std::string display(std::min<std::size_t>(length, 256), 'd');
    const std::string internal(std::min<std::size_t>(length, 256), 'i');
    EXPECT_EQ(Join({Str(ink.DisplayName), Str(media.DisplayName), Str(media.UnlocalizedName),
                    Str(mode.DisplayName), Str(mode.UnlocalizedName), Str(resolution.DisplayName),
                    Str(color.DisplayName)},
                   " "),
              Join(std::vector<std::string>(7, display), " "));
    EXPECT_EQ(Join({Str(ink.InternalName), Str(media.InternalName), Str(mode.InternalName),
                    Str(color.InternalName)},
                   " "),
              Join(std::vector<std::string>(4, internal), " "));
    EXPECT_EQ(ink.DisplayName[255] == '\0', length < 256);
    EXPECT_EQ(media.IsCustomizableMedia, 0);
    EXPECT_EQ(color.ColorantCount, 1);
  }
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
    ASSERT_NE(document, nullptr);
    Numbers got(4, 9.0);
    EXPECT_EQ(document->GetMediaSizeLimits(got[0], got[1], got[2], got[3]), 1);
    EXPECT_EQ(got, row.limits) << row.definition;
    EXPECT_EQ(document->GetMinimumMargin(got[0], got[1], got[2], got[3]), 1);
    EXPECT_EQ(got, row.margins) << row.definition;
  }
}

TEST(Definition, NeedsFiveListsAndTakesTextsAsTheyAre) {
  const std::string whole = DocumentText{}.Text();
  for (const char* name :
       {"InkList", "MediaList", "PrintModeList", "ResolutionList", "ColorModeList", "Definition"}) {
    std::string text = whole;
    text.insert(text.find(name), "X");
    text.insert(text.find("</" + std::string(name)) + 2, "X");
    EXPECT_EQ(LoadText(text), nullptr) << name;
  }
  EXPECT_EQ(Load({.ColorModeList = Entries("1")}), nullptr) << "no colorant";

  const auto bare = LoadText(whole);
  ASSERT_NE(bare, nullptr);
  EXPECT_EQ(bare->GetProdcutType() + bare->GetTranslationTable() + bare->GetCustomMediaFile(), "");
  const std::string longText(5000, 'p');
  const auto named = Load({.Definition = Element("ProductType", " " + longText + "\n") +
                                         "<CustomMediaFile>a<!-- -->b</CustomMediaFile>" +
                                         "<TranslationTable>t</TranslationTable><ProductType/>"});
  ASSERT_NE(named, nullptr);
  EXPECT_EQ(named->GetProdcutType(), (" " + longText + "\n").c_str());
  EXPECT_EQ(named->GetTranslationTable(), "t");
  EXPECT_EQ(named->GetCustomMediaFile(), "ab");
}

}  // namespace
