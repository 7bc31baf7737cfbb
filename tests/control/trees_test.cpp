// Both control sections, read into trees.

#include "tests/trees.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "qdf/control/readers.h"
#include "qdf/core/documentmembers.h"
#include "qdf/support/ownership.h"
#include "tests/documents.h"

namespace {

std::string ControlTreeOf(const DocumentText& text) {
  return Dump(DocumentMembers(*Load(text)).ControlTreeRoot);
}

// The colour modes on one path: their nodes and the names that those refer to.
struct OnePath {
  explicit OnePath(const std::string& colorModes)
      : document(Load({.ColorModeList = ColorModes("1;2;3"),
                       .Control = Replaced(Control("[1[1[1[1[1]]]]]"), kColorMode, colorModes)})),
        members(*document),
        tree(Dump(members.ControlTreeRoot)) {}

  static constexpr const char* kColorMode = "<ColorMode ID=\"1\"></ColorMode>";
  std::unique_ptr<APMQDF> document;
  DocumentMembers members;
  std::string tree;
};

std::string Under(const std::string& colorModes) { return "[1[1[1[1[" + colorModes + "]]]]]"; }

TEST(ControlTree, KeepsWhatTheListsKnow) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},
      {"<control_definition DefaultInk='1'/>", ""},
      {"<Control_Definition DefaultInk=' 9x'/><Control_Definition DefaultInk='1'/>", ">9"},
      {"<Control_Definition DefaultInk=''><Ink ID='1,2' DefaultMedia='-7'/></Control_Definition>",
       "[1,2>-7]"},
      {"<Control_Definition><Ink ID='2'/><Ink ID='2'/><ink ID='1'/><Ink/><Ink ID=''/>"
       "<Ink ID='9'><Media ID='ALL'/></Ink><X><Ink ID='1'/></X></Control_Definition>",
       "[2;2]"},
      {"<Control_Definition><Ink ID='-(1)' DefaultMedia='11' Default='5'>"
       "<PrintMode ID='1'/><Media ID='ALL' DefaultPrintMode='4'><PrintMode ID='1' "
       "DefaultResolution='99999999999'><Resolution ID='(1)' DefaultColorMode='1'><Media ID='10'/>"
       "<ColorMode ID='7'/></Resolution></PrintMode></Media></Ink></Control_Definition>",
       "[2,0>11[12,11,10>4[1>2147483647[1>1]]]]"}};
  for (const auto& [control, tree] : rows) {
    EXPECT_EQ(ControlTreeOf({.InkList = Entries("1;2;0"),
                             .MediaList = Entries("10=b;11=b;12=a"),
                             .Control = control}),
              tree)
        << control;
  }
}

TEST(ControlTree, GivesEachColourModeThreeLeaves) {
  const OnePath read(
      "<ColorMode ID='1,2' DefaultICCProfile=' P3 ' DefaultDither='lost'>"
      "<PrinterSpecificSetting> \n</PrinterSpecificSetting><ICCProfile>p1</ICCProfile>"
      "<ICCProfile> p1</ICCProfile><ICCProfile>P1</ICCProfile><iccprofile>x</iccprofile>"
      "<ICCProfile/></ColorMode>"
      "<ColorMode ID='3' DefaultICCProfile='P1'><ICCProfile/><ICCProfile> p3 </ICCProfile>"
      "<PrinterSpecificSetting> Set A </PrinterSpecificSetting>"
      "<PrinterSpecificSetting>Set B</PrinterSpecificSetting></ColorMode>"
      "<ColorMode ID='3'><PrinterSpecificSetting>SET a</PrinterSpecificSetting></ColorMode>"
      "<ColorMode ID='2'/>");
  EXPECT_EQ(read.tree, Under("1,2>-1[1,2,3;>-1;];3[3,0>1;>-1;];3[>-1;>-1;];2>-1[>-1;>-1;]"));
  EXPECT_EQ(Dump(read.members.ICCProfileList), " P3 |p1| p1|");
  EXPECT_EQ(Dump(read.members.OEMInfoList), "Set A");
  EXPECT_EQ(Dump(read.members.DitherNameList), "") << "a default without a list";
}

TEST(ControlTree, TakesDithersAndTheirResolutions) {
  const std::string d63(63, 'd');
  const OnePath read(
      "<ColorMode ID='1' DefaultDither=' Floyd '><DitherList SupportAll='0'>"
      "<Dither Name='Fast' RipResolution='720.2X360'/><Dither Name='fast' RipResolution='600'/>"
      "<Dither Name='Fast' RipResolution='720.9x360.9'/><Dither Name='Fast' RipResolution='x9'/>"
      "<Dither Name=' Fast'/><Dither Name='' RipResolution='1'/><Dither RipResolution='1'/>"
      "<dither Name='no' RipResolution='1'/><Dither Name='minus' RipResolution='-1x1'/>"
      "</DitherList><DitherList><Dither Name='second list'/></DitherList></ColorMode>"
      "<ColorMode ID='2' DefaultDither='FLOYD'><DitherList SupportAll='1'>"
      "<Dither Name='Fast' RipResolution='720.2x360'/><Dither Name='unlisted'/></DitherList>"
      "</ColorMode><ColorMode ID='3'><DitherList SupportAll='-1'>"
      "<Dither Name='" +
      d63 + "ab' RipResolution='1'/><Dither Name='" + d63 +
      "ac' RipResolution='1'/><Dither Name='" + d63 +
      "' RipResolution='1'/></DitherList></ColorMode>");
  EXPECT_EQ(Dump(read.members.DitherNameList),
            "Floyd|Fast|fast| Fast|minus|FLOYD|" + d63 + "ab|" + d63 + "ac|" + d63);
  EXPECT_EQ(read.tree, Under("1>-1[>-1;1,2,3,4;0,1];2>-1[>-1;>5;2];3>-1[>-1;6,7,8>-1;3,4]"));
  std::vector<std::string> records;
  for (const auto& each : Records<DitherResolutionInfo>(read.members.DitherResolutionList)) {
    AString numbers;
    numbers.Format(" %gx%g of ", each.XResolution, each.YResolution);
    records.push_back(Str(each.Name) + static_cast<const char*>(numbers) + Dump(*each.OwnerNode));
  }
  EXPECT_EQ(Join(records, "; "),
            "Fast 720.2x360 of 0,1; fast 600x600 of 0,1; Fast 720.2x360 of 2; " + d63 +
                "a 1x1 of 3,4; " + d63 + " 1x1 of 3,4");
}

TEST(SourceTree, KeepsSourcesWithoutIDsAndMarginsOfTheirOwn) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},
      {"<MediaSource_Control DefaultMediaSourceID='2x'><MediaSource "
       "ID='ALL'/></MediaSource_Control>",
       ">2[1,2]"},
      {"<MediaSource_Control><MediaSource ID='9' DefaultMediaSizeID='3'><MediaSize ID='-(3)'/>"
       "</MediaSource><MediaSource/><mediasource ID='1'/><MediaSource "
       "ID='1'/></MediaSource_Control>",
       "[>3[5,4];;1]"},
      {"<MediaSource_Control><MediaSource ID='1'><MediaSize ID='3,5' MarginIDList='7,6' "
       "DefaultMarginID='6'/><MediaSize ID='8' MarginIDList='ALL'/><MediaSize ID='4' "
       "MarginIDList='9' DefaultMarginID='6' Default='1'/><MediaSize ID='4' MarginIDList='-'/>"
       "<X><MediaSize ID='3'/></X></MediaSource></MediaSource_Control>",
       "[1[3,5[7,6>6];4;4[6,7]]]"}};
  for (const auto& [control, tree] : rows) {
    const auto document = Load({.MediaSourceList = Entries("1;2"),
                                .MediaSizeList = Entries("5;4;3"),
                                .MarginInfoList = Entries("6;7"),
                                .SourceControl = control});
    EXPECT_EQ(Dump(*document->GetMediaSourceTreeRoot()), tree) << control;
  }
  EXPECT_EQ(Dump(*Load({.SourceControl = rows[1].first})->GetMediaSourceTreeRoot()), "")
      << "without a list of sources the section isn't read";
}

// Without a document, and for one that doesn't keep the tree.
TEST(Trees, AreReadAtOnceFromATreeOfTheCallers) {
  const std::string file = QDF_EXAMPLES "/OutputDrivers/plot36.qdf";
  const auto document = LoadFile(file);
  const DocumentMembers whole(*document);
  const auto tree = TreeOf(ReadFile(file));
  for (const bool forADocument : {false, true}) {
    AStringArray profiles;
    AStringArray settings;
    AStringArray names;
    APtrArray records;
    CQDFNode root;
    DeferredDithers dithers(names, records);
    dithers.BeginTree(*tree);
    const auto read = [&](AXMLTree* from) {
      return ReadControlDefinition(from, whole.InkList, whole.MediaList, whole.PrintModeList,
                                   whole.ResolutionList, whole.ColorModeList, root, profiles,
                                   settings, names, records, forADocument ? &dithers : nullptr);
    };
    EXPECT_EQ(read(nullptr), 0);
    EXPECT_EQ(read(tree.get()), 1);
    EXPECT_EQ(Dump(root), Dump(whole.ControlTreeRoot));
    EXPECT_EQ(Dump(names), Dump(whole.DitherNameList));
    EXPECT_EQ(records.GetSize(), whole.DitherResolutionList.GetSize());
    if (!forADocument) DeleteItems<DitherResolutionInfo>(records);
  }
  APtrArray none;
  CQDFNode root;
  EXPECT_EQ(ReadMediaSourceControl(nullptr, none, none, none, root), 0);
  EXPECT_EQ(ReadMediaSourceControl(tree.get(), none, none, none, root), 1);
  EXPECT_EQ(Dump(root), ">1[>1]") << "a source without ids";
}

}  // namespace
