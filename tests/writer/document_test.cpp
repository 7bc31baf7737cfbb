#include <cstdlib>
#include <filesystem>
#include <pugixml.hpp>
#include <regex>

#include "qdf/core/documentmembers.h"
#include "tests/children.h"
#include "tests/writer/written.h"

namespace {

namespace fs = std::filesystem;

// All that the written form loses, in one document.
TEST(WriteDocument, LosesWhatItHasNoPlaceFor) {
  const std::string leaves =
      "<ICCProfile>p</ICCProfile><DitherList><Dither Name='even' RipResolution='720x360'/>"
      "<Dither Name='odd'/></DitherList>";
  std::string control = Control(">2[1>1[1[1[1[1]]]];2[1[1[1[1]]]]]", leaves);
  control = std::regex_replace(control, std::regex("<ColorMode "), "$&DefaultDither='odd' ");
  const auto document =
      Load({.InkList = Entries("1;2"),
            .ResolutionList = Resolutions("1=360.5x720.25"),
            .ColorModeList = "<a><ID>1</ID><ColorantList><c IsPrint='0' Shape='Round' "
                             "Frequency='80' Angle='15' IsSpotColor='1'/></ColorantList></a>",
            .Definition = ListElement("MediaSourceList", Entries("1")) +
                          ListElement("MediaSizeList", Entries("1", "<Size>1.23456789,2</Size>")) +
                          ListElement("MarginInfoList", Entries("1")),
            .Control = control,
            .SourceControl = SourceControl("[1[1[1>1]]]")});
  const auto again = LoadText(Written(*document));
  const DocumentMembers before(*document);
  const DocumentMembers after(*again);
  EXPECT_EQ(Dump(before.ControlTreeRoot),
            ">2[1>1[1[1[1[1>-1[0>-1;1,0;0]]]]];2[1[1[1[1>-1[0>-1;1,0;1]]]]]]");
  EXPECT_EQ(Dump(after.ControlTreeRoot), "[1>1[1[1[1[1>-1[0>-1;0,1>-1;]]]]]]");
  EXPECT_EQ(Dump(after.DitherNameList), "EVEN|ODD");
  EXPECT_EQ(after.DitherResolutionList.GetSize(), 0);
  EXPECT_EQ(Dump(after.MediaSourceTreeRoot), "[1[1[1]]]");
  const auto resolution = Records<ResolutionInfo>(after.ResolutionList)[0];
  EXPECT_EQ(resolution.XResolution, 360.0);
  EXPECT_EQ(resolution.YResolution, 720.0);
  EXPECT_EQ(Records<MediaSizeInfo>(after.MediaSizeList)[0].FirstDimension, 1.234568);
  ANewColorOpt expected;
  expected.Colorant.IsSpotColor = 1;
  EXPECT_NE(Records<ColorModeInfo>(after.ColorModeList)[0].Colorants[0] == expected, 0);
}

TEST(WriteDocument, ExamplesComeBackAndThenStayAsTheyAre) {
  int examples = 0;
  for (const auto& entry : fs::directory_iterator(QDF_EXAMPLES "/OutputDrivers")) {
    if (entry.path().extension() != ".qdf") continue;
    SCOPED_TRACE(entry.path());
    ++examples;
    const auto document = LoadFile(entry.path());
    const std::string first = Written(*document);
    const auto again = LoadText(first);
    const std::string second = Written(*again);
    EXPECT_EQ(Written(*LoadText(second)), second);
    // Default dithers were written where they aren't read, and default margins not at all.
    EXPECT_EQ(std::regex_replace(first, std::regex(" DefaultDither=\"[^\"]*\""), ""), second);
    EXPECT_EQ(
        std::regex_replace(Dump(*document->GetMediaSourceTreeRoot()), std::regex(">[0-9]+]"), "]"),
        Dump(*again->GetMediaSourceTreeRoot()));
  }
  EXPECT_GE(examples, 2);
}

// A file with former content that a document is written over.
struct Target {
  TempFolder folder;
  std::string file = folder.Write("file.qdf", "former");
  AFilePath path{file.c_str()};
};

TEST(WriteDocument, AFailedWriteKeepsTheFormerFile) {
  Target target;
  AFilePath made(target.folder.Path("made.qdf").c_str());
  AFilePath folder(target.folder.Path().c_str());
  const auto document = Load({});
  EXPECT_EQ(InChild([&] {
              LimitFileSizes(100);
              for (AFilePath* path : {&target.path, &made, &folder}) document->PMWriteQDF(*path);
              return 0;
            }),
            0);
  EXPECT_EQ(ReadFile(target.file), "former");
  EXPECT_EQ(made.exists(), 0);
}

int allocationsLeft = 0;

// The names are larger than what a tree allocates at once, so each is an allocation of its own.
TEST(WriteDocument, WithoutMemoryForTheTreeTheFormerFileStays) {
  const std::string large(50000, 'x');
  std::string control = Control("[1[1[1[1[1]]]]]", "<ICCProfile>" + large + "</ICCProfile>");
  control.insert(control.find("<ColorMode ") + 11, "DefaultICCProfile='" + large + "' ");
  const auto document = Load({.Definition = ListElement("ProductType", large), .Control = control});
  Target target;
  const auto allocate = pugi::get_memory_allocation_function();
  const auto release = pugi::get_memory_deallocation_function();
  int failures = -1;
  do {
    allocationsLeft = ++failures;
    pugi::set_memory_management_functions(
        [](std::size_t size) { return allocationsLeft-- > 0 ? std::malloc(size) : nullptr; },
        release);
    document->PMWriteQDF(target.path);
    pugi::set_memory_management_functions(allocate, release);
  } while (ReadFile(target.file) == "former");
  EXPECT_EQ(ReadFile(target.file), Written(*document));
  EXPECT_GE(failures, 3);
}

// A host's own document: it answers for itself, or has no memory to answer.
class HostDocument : public APMQDF {
 public:
  AString GetProdcutType() override { return "Host's"; }
  AString GetCustomMediaFile() override { return "host.txt"; }
  int GetMarginInfoList(const int& mediaSource, const int& mediaSize,
                        std::vector<MarginInfo>& margins, int& /*defaultPosition*/) override {
    margins.push_back({});
    margins.back().ID = mediaSource * 10 + mediaSize;
    return 1;
  }
  int GetFullMediaTypeList(std::vector<MediaTypeInfo>& media) override {
    media.push_back({7, "", "", 0, "Own"});
    return 1;
  }
};

TEST(WriteDocument, AsksThroughTheVirtualOperations) {
  const TempFolder folder;
  const DocumentText text{.Definition = ListElement("MediaSourceList", Entries("3")) +
                                        ListElement("MediaSizeList", Entries("4")) +
                                        ListElement("MarginInfoList", Entries("1")),
                          .SourceControl = SourceControl("[3[4[1]]]")};
  AFilePath path(folder.Write("document.qdf", text.Text()).c_str());
  HostDocument document;
  ASSERT_EQ(document.LoadQDFFile(path), 1);
  const std::string written = Written(document);
  EXPECT_EQ(Part(written, "ProductType"), "ProductType=Host's");
  EXPECT_EQ(Part(written, "CustomMediaFile"), "CustomMediaFile=host.txt");
  EXPECT_EQ(Part(written, "MediaSize"), "MediaSize(ID=4 MarginIDList=34)");
  EXPECT_EQ(Part(written, "MediaDef"),
            "MediaDef{ID=7 InternalName DisplayName=Own IsCustomizableMedia=0}");
}

}  // namespace
