#include <gtest/gtest.h>

#include "qdf/core/documentmembers.h"
#include "tests/files.h"
#include "tests/tool/document.h"
#include "tests/tool/run.h"

namespace {

TEST(Tree, ShowsBothTreesWithNames) {
  const TempFolder folder;
  folder.Write("small.qdf", kSmallDocument);
  EXPECT_EQ(RunTool({"tree", "small.qdf"}, {folder.Path()}),
            (Outcome{0, R"(Control tree (default ink: 1 Photo Black)
  Ink: 1 Photo Black (default media: 11 Glossy)
    Media: 10 Plain, 11 Glossy, 12 10 (default print mode: 21 Best)
      Print mode: 20 Draft, 21 Best (default resolution: 30 300 dpi)
        Resolution: 30 300 dpi, 31 fine (default colour mode: 99)
          Colour mode: 40 Colour, 41 Grey
            Printer specific text: Quality=1
            Profiles: a.icc, b.icc (default)
            Dithers: Fine 300x600, Coarse
            Default dither: Smooth
  Ink: 2 Matte Black
    Media: 10 Plain
  Ink: 2 Matte Black
    Media: 13 Glossy
      Print mode: 20 Draft
        Resolution: 31 fine
          Colour mode: 41 Grey
            Printer specific text: -
            Profiles: none
            Dithers: none
            RIP resolutions of other dithers: Any 72x73

Media source tree (default media source: 51 Tray)
  Media source: 50 Roll (default media size: 61 A3)
    Media size: 60 A4, 61 A3
      Margins: 70 narrow, 71 wide (default margins: 71 wide)
  Media source: 51 Tray
    Media size: 60 A4
)"}));
  EXPECT_EQ(RunTool({"tree", "small.qdf", "--depth", "1"}, {folder.Path()}),
            (Outcome{0, R"(Control tree (default ink: 1 Photo Black)
  Ink: 1 Photo Black (default media: 11 Glossy; nodes below: 1)
  Ink: 2 Matte Black (nodes below: 1)
  Ink: 2 Matte Black (nodes below: 1)

Media source tree (default media source: 51 Tray)
  Media source: 50 Roll (default media size: 61 A3; nodes below: 1)
  Media source: 51 Tray (nodes below: 1)
)"}));
}

TEST(Tree, CutsLongListsForPeopleOnly) {
  const std::string dithers = "Dithers: EvenTone 300x300 (default), HybridEvenTone 300x300, ";
  const std::string text = RunTool({"tree", "plot36.qdf"}).out;
  EXPECT_NE(text.find(dithers), std::string::npos);
  EXPECT_NE(text.find("Floyd 300x300 and 3 more\n"), std::string::npos);
  EXPECT_EQ(text.find("SegmentedNew"), std::string::npos);
  const std::string json = RunTool({"tree", "plot36.qdf", "--json"}).out;
  EXPECT_NE(json.find("\"SegmentedNew\""), std::string::npos);
}

// The level of a leaf's children, of which programs see none.
constexpr int kLeaves = 5;

// What --json tells of a node and all below it must be what the library holds, whatever the level.
void ExpectSame(const nlohmann::json& told, const CQDFNode& node, int level, int depth) {
  ASSERT_TRUE(told.is_object());
  if (level > 0) {
    std::vector<int> ids;
    for (const nlohmann::json& option : told["options"]) {
      ids.push_back(option["id"]);
      EXPECT_NE(option["name"], "");
    }
    EXPECT_EQ(ids, std::vector<int>(node.IDs.begin(), node.IDs.end()));
  }
  if (told.contains("default") && !told["default"].is_null()) {
    EXPECT_EQ(told["default"]["id"], node.Default);
  }
  if (level == depth) {
    EXPECT_EQ(told.value("childCount", 0), node.Children.GetSize());
    return;
  }
  if (level == kLeaves) {
    EXPECT_EQ(told["profiles"].size(), ChildAt(node, 0)->IDs.GetSize());
    EXPECT_EQ(told["dithers"].size(), ChildAt(node, 1)->IDs.GetSize());
    return;
  }
  const nlohmann::json children = told.value("children", nlohmann::json::array());
  ASSERT_EQ(children.size(), static_cast<std::size_t>(node.Children.GetSize()));
  for (std::size_t i = 0; i < children.size(); ++i) {
    ExpectSame(children[i], *ChildAt(node, static_cast<int>(i)), level + 1, depth);
  }
}

TEST(Tree, AgreesWithTheLibraryAtEachDepth) {
  for (const char* name : {"plot36.qdf", "dyesub6.qdf"}) {
    AFilePath path((std::string(QDF_EXAMPLES "/OutputDrivers/") + name).c_str());
    APMQDF* loaded = nullptr;
    PMGetQDFInterface(path, &loaded);
    const std::unique_ptr<APMQDF> document(loaded);
    ASSERT_NE(document, nullptr);
    const DocumentMembers members(*document);
    for (const int depth : {0, 1, 3, 5, 6}) {
      const nlohmann::json told = RunJson({"tree", name, "--depth", std::to_string(depth)});
      ExpectSame(told["controlTree"], members.ControlTreeRoot, 0, depth);
      ExpectSame(told["mediaSourceTree"], members.MediaSourceTreeRoot, 0, depth);
    }
    EXPECT_EQ(RunJson({"tree", name}), RunJson({"tree", name, "--depth", "6"}));
  }
}

}  // namespace
