#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tool/document.h"

namespace {

using testing::HasSubstr;

using Tree = SmallDocumentTest;

TEST_F(Tree, ShowsBothTreesWithNames) {
  EXPECT_EQ(Run("tree small.qdf"), (Outcome{0, R"(Control tree (default ink: 1 Photo Black)
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
}

TEST_F(Tree, CutsLongListsForPeopleOnly) {
  EXPECT_THAT(RunTool({"tree", "plot36.qdf"}).out,
              AllOf(HasSubstr("Floyd 300x300 and 3 more\n"), Not(HasSubstr("SegmentedNew"))));
  EXPECT_THAT(RunTool({"tree", "plot36.qdf", "--json"}).out, HasSubstr("\"SegmentedNew\""));
}

TEST_F(Tree, TellsProgramsTheSame) {
  nlohmann::json node = Json("tree small.qdf")["controlTree"];
  for (int level = 0; level < 5; ++level) node = nlohmann::json(node["children"][0]);
  EXPECT_EQ(node, nlohmann::json::parse(R"({"level": "colorMode",
      "options": [{"id": 40, "name": "Colour"}, {"id": 41, "name": "Grey"}],
      "printerSpecificText": "Quality=1", "defaultProfile": "b.icc", "defaultDither": "Smooth",
      "profiles": [{"name": "a.icc", "default": false}, {"name": "b.icc", "default": true}],
      "dithers": [{"name": "Fine", "ripResolution": {"x": 300, "y": 600}, "default": false},
                  {"name": "Coarse", "ripResolution": null, "default": false}],
      "otherRipResolutions": []})"));
  const nlohmann::json cut = Json("tree small.qdf --depth 2");
  EXPECT_EQ(cut["mediaSourceTree"], nlohmann::json::parse(R"({
      "default": {"id": 51, "name": "Tray"},
      "children": [
        {"level": "mediaSource", "options": [{"id": 50, "name": "Roll"}],
         "default": {"id": 61, "name": "A3"},
         "children": [{"level": "mediaSize", "childCount": 1,
                       "options": [{"id": 60, "name": "A4"}, {"id": 61, "name": "A3"}]}]},
        {"level": "mediaSource", "options": [{"id": 51, "name": "Tray"}], "default": null,
         "children": [{"level": "mediaSize", "childCount": 0,
                       "options": [{"id": 60, "name": "A4"}]}]}]})"));
}

}  // namespace
