// The control tree as it is written.

#include "qdf/core/documentmembers.h"
#include "tests/writer/written.h"

namespace {

std::string WrittenControl(const std::string& control) {
  const auto document = Load({.InkList = Entries("1;2"),
                              .MediaList = Entries("10=a;11=b"),
                              .ColorModeList = ColorModes("1;2"),
                              .Control = control});
  return Part(Written(*document), "Control_Definition");
}

TEST(WriteControl, LevelsHaveOneForm) {
  EXPECT_EQ(WrittenControl(""), "");
  EXPECT_EQ(WrittenControl(Control("")), "");
  EXPECT_EQ(WrittenControl(Control(">2[1,2>10]")),
            "Control_Definition{Ink(DefaultMedia=10 ID=1,2)}");
  EXPECT_EQ(WrittenControl(Control("[1>9[ALL>8[1>7[1>-6[2,1;1]]];11[1]];2[10[1]]]")),
            "Control_Definition{Ink(DefaultMedia=9 ID=1){Media(DefaultPrintMode=8 ID=10,11){"
            "PrintMode(DefaultResolution=7 ID=1){Resolution(DefaultColorMode=-6 ID=1){"
            "ColorMode(ID=2,1){DitherList(SupportAll=0)} ColorMode(ID=1){DitherList(SupportAll=0)}"
            "}}} Media(ID=11){PrintMode(ID=1)}}}");
}

TEST(WriteControl, LeavesBecomeNames) {
  const struct {
    const char* attributes;
    const char* content;
    const char* expected;
  } rows[] = {{"", "<PrinterSpecificSetting> a=&lt; </PrinterSpecificSetting>",
               "ColorMode(ID=1){PrinterSpecificSetting=a=< DitherList(SupportAll=0)}"},
              {"DefaultICCProfile='c'",
               "<ICCProfile>b</ICCProfile><ICCProfile>B</ICCProfile><ICCProfile/><ICCProfile>a</"
               "ICCProfile>",
               "ColorMode(ID=1 DefaultICCProfile=c){ICCProfile=b ICCProfile ICCProfile=a "
               "DitherList(SupportAll=0)}"},
              {"DefaultDither='Even'", "", "ColorMode(ID=1){DitherList(SupportAll=0)}"},
              {"DefaultDither='Even'",
               "<DitherList><Dither Name='x\xE4' RipResolution='600'/><Dither Name='aLl'/><Dither "
               "Name='X\xE4'/><Dither Name='ALL '/></DitherList>",
               "ColorMode(ID=1){DitherList(DefaultDither=Even SupportAll=1){Dither(Name=X\xE4) "
               "Dither(Name=X\xE4) Dither(Name=ALL )}}"},
              {"", "<DitherList SupportAll='1'><Dither Name='x'/></DitherList>",
               "ColorMode(ID=1){DitherList(SupportAll=0)}"}};
  for (const auto& row : rows) {
    const auto document =
        Load({.Control = Control("[1[1[1[1[1]]]]]", row.content, row.attributes)});
    EXPECT_EQ(Part(Written(*document), "ColorMode"), row.expected);
  }
}

CQDFNode* AddNode(CQDFNode* parent, std::initializer_list<int> ids, int defaultID) {
  CQDFNode* node = AddChildNode(*parent);
  for (const int id : ids) node->IDs.Add(static_cast<std::uint32_t>(id));
  node->Default = defaultID;
  return node;
}

// Trees that no file gives: with null children, nodes without ids, indices beyond the lists.
TEST(WriteControl, ToleratesAnyTree) {
  APMQDF document;
  const DocumentMembers members(document);
  members.ControlTreeRoot.Children.Add(nullptr);
  members.MediaSourceTreeRoot.Children.Add(nullptr);
  EXPECT_EQ(Part(Written(document), "Control_Definition"), "");
  EXPECT_EQ(Part(Written(document), "MediaSource_Control"), "MediaSource_Control{MediaSource}");

  members.ControlTreeRoot.Children.SetSize(0, -1);
  for (const char* name : {"", "p"}) {
    members.OEMInfoList.Add(name);
    members.ICCProfileList.Add(name);
    members.DitherNameList.Add(name);
  }
  CQDFNode* ink = AddNode(&members.ControlTreeRoot, {}, 0);
  ink->Children.Add(nullptr);
  CQDFNode* resolution = AddNode(AddNode(AddNode(ink, {5}, 0), {-6}, 0), {}, 0);
  AddNode(resolution, {7}, 0);
  AddNode(AddNode(resolution, {}, 2), {1, 2, -1, 1, 0}, 0);
  CQDFNode* full = AddNode(resolution, {8}, -1);
  full->Children.Add(nullptr);
  AddNode(full, {1, 1, 9}, 0);
  AddNode(full, {0}, 1);
  AddNode(full, {1}, 1);
  EXPECT_EQ(Part(Written(document), "Control_Definition"),
            "Control_Definition{Ink{Media Media(ID=5){PrintMode(ID=-6){Resolution{"
            "ColorMode(ID=7) ColorMode(DefaultICCProfile=){ICCProfile=p ICCProfile} "
            "ColorMode(ID=8){DitherList(SupportAll=0){Dither(Name=P)}}}}}}}");
}

std::unique_ptr<APMQDF> LoadSources(const std::string& sourceControl) {
  return Load({.MediaSourceList = Entries("1;2;3"),
               .MediaSizeList = Entries("4;5;6"),
               .MarginInfoList = Entries("8;7"),
               .SourceControl = sourceControl});
}

TEST(WriteMediaSourceControl, MarginsAreThoseThatAHostIsAnswered) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},
      {">2[1,2>5[4,5[7,8>7];6];3[4]]",
       "MediaSource_Control(DefaultMediaSourceID=2){MediaSource(ID=1,2 DefaultMediaSizeID=5){"
       "MediaSize(ID=4,5 MarginIDList=8,7) MediaSize(ID=6 MarginIDList=)} "
       "MediaSource(ID=3){MediaSize(ID=4 MarginIDList=)}}"},
      // The second node of a source and of a size gets the margins of the first.
      {"[1[4[8];4[7]];9[4];1[4[7]]]",
       "MediaSource_Control{MediaSource(ID=1){MediaSize(ID=4 MarginIDList=8) "
       "MediaSize(ID=4 MarginIDList=8)} MediaSource MediaSource(ID=1){"
       "MediaSize(ID=4 MarginIDList=8)}}"}};
  for (const auto& [tree, expected] : rows) {
    const auto document = LoadSources(SourceControl(tree));
    EXPECT_EQ(Part(Written(*document), "MediaSource_Control"), expected);
  }
}

TEST(WriteMediaSourceControl, SkipsSizesWithoutIDs) {
  const auto document = LoadSources("");
  CQDFNode* root = document->GetMediaSourceTreeRoot();
  root->Children.Add(nullptr);
  AddNode(AddNode(root, {}, 3), {4}, 0);
  CQDFNode* source = AddNode(root, {1}, 0);
  source->Children.Add(nullptr);
  AddNode(AddNode(source, {}, 0), {8}, 0);
  AddNode(AddNode(source, {6}, 0), {7, 99, 8}, 0);
  AddNode(source, {5}, 0)->Children.Add(nullptr);
  EXPECT_EQ(Part(Written(*document), "MediaSource_Control"),
            "MediaSource_Control{MediaSource MediaSource MediaSource(ID=1){"
            "MediaSize(ID=6 MarginIDList=8,7) MediaSize(ID=5 MarginIDList=)}}");
}

}  // namespace
