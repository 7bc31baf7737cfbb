// What a document holds, as show and tree tell it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tool/document.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;

using Show = SmallDocumentTest;

TEST_F(Show, TellsEachField) {
  const std::string shown = Run("show small.qdf").out;
  EXPECT_THAT(shown, HasSubstr(R"(
Colour modes (2)
  ID  Display name  Internal name  Colorant  Internal  Depth  Spot  Print  Shape    Frequency  Angle
  40  Colour        cmyk           Cyan      C             2     0      1  Round           60    0.1
                                   Gold                    1     1      0  Diamond         55     45
  41  Grey                                                 1     0      1  Diamond         55     45
)"));
  EXPECT_THAT(shown, HasSubstr(R"(
Media sizes (2)
  ID  Display name  Internal name  PCL id  Roll  First  Second
  60  A4                                8     9    595     842
  61  A3                                0     0      0       0
)"));
}

// The first record of each list. Of a colorant's values only those that nobody may see elsewhere.
TEST_F(Show, TellsProgramsTheSameAndEachListByItself) {
  json all = Json("show small.qdf");
  for (const auto& [name, key] :
       {std::pair("inks", "inks"), std::pair("media", "media"), std::pair("margins", "margins"),
        std::pair("print-modes", "printModes"), std::pair("resolutions", "resolutions"),
        std::pair("color-modes", "colorModes"), std::pair("media-sources", "mediaSources"),
        std::pair("media-sizes", "mediaSizes")}) {
    EXPECT_EQ(Json(std::string("show small.qdf --list ") + name),
              json({{"document", "small.qdf"}, {key, all[key]}}));
    all[key] = json(all[key][0]);
  }
  json& colorants = all["colorModes"]["colorants"];
  colorants.erase(1);
  colorants[0].erase("curveValues");
  colorants[0].erase("curveFlags");
  EXPECT_EQ(all, json::parse(R"({
      "document": "small.qdf", "productType": "small", "translationTable": "small.txt",
      "customMediaFile": "small_custom.txt", "mediaSizeLimits": [10, 20, 30, 40],
      "minimumMargins": [5, 6, 7, 8],
      "inks": {"id": 1, "displayName": "Photo Black", "internalName": "ph"},
      "media": {"id": 12, "displayName": "10", "internalName": "PL", "isCustomizableMedia": 0,
        "unlocalizedName": "10"},
      "printModes": {"id": 20, "displayName": "Draft", "internalName": "dr",
        "unlocalizedName": "Draft"},
      "resolutions": {"id": 30, "displayName": "300 dpi", "xResolution": 300, "yResolution": 300},
      "colorModes": {"id": 40, "displayName": "Colour", "internalName": "cmyk", "colorants": [
        {"displayName": "Cyan", "internalName": "C", "colorDepth": 2, "isSpotColor": 0,
          "isPrint": 1, "shape": "Round", "frequency": 60, "angle": 0.1, "setting0": 4,
          "setting4": 0, "setting5": 0.1, "setting6": 0, "setting7": 0, "setting8": -1,
          "setting9": 1, "setting10": 100, "colorantSetting5": 0}]},
      "mediaSources": {"id": 50, "displayName": "Roll", "internalName": "ro"},
      "mediaSizes": {"id": 60, "displayName": "A4", "internalName": "", "pclId": 8, "isRoll": 9,
        "firstDimension": 595, "secondDimension": 842},
      "margins": {"id": 70, "displayName": "narrow", "internalName": "", "firstMargin": 1,
        "secondMargin": 2, "thirdMargin": 3, "fourthMargin": 4}})"));
}

using Tree = SmallDocumentTest;

TEST_F(Tree, ShowsNodesWithNamesDownToTheDithers) {
  EXPECT_THAT(Run("tree small.qdf").out, HasSubstr(R"(
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
)"));
}

TEST_F(Tree, TellsProgramsTheSameAndLongListsWhole) {
  EXPECT_THAT(RunTool({"tree", "plot36.qdf"}).out,
              AllOf(HasSubstr("Floyd 300x300 and 3 more\n"), Not(HasSubstr("SegmentedNew"))));
  EXPECT_THAT(RunTool({"tree", "plot36.qdf", "--json"}).out, HasSubstr("\"SegmentedNew\""));
  json node = Json("tree small.qdf")["controlTree"];
  for (int level = 0; level < 5; ++level) node = json(node["children"][0]);
  EXPECT_EQ(node, json::parse(R"({"level": "colorMode",
      "options": [{"id": 40, "name": "Colour"}, {"id": 41, "name": "Grey"}],
      "printerSpecificText": "Quality=1", "defaultProfile": "b.icc", "defaultDither": "Smooth",
      "profiles": [{"name": "a.icc", "default": false}, {"name": "b.icc", "default": true}],
      "dithers": [{"name": "Fine", "ripResolution": {"x": 300, "y": 600}, "default": false},
                  {"name": "Coarse", "ripResolution": null, "default": false}],
      "otherRipResolutions": []})"));
  const json cut = Json("tree small.qdf --depth 2")["mediaSourceTree"];
  EXPECT_EQ(cut["default"], json({{"id", 51}, {"name", "Tray"}}));
  EXPECT_EQ(cut["children"][1], json::parse(R"({
      "level": "mediaSource", "options": [{"id": 51, "name": "Tray"}], "default": null,
      "children": [{"level": "mediaSize", "childCount": 0,
                    "options": [{"id": 60, "name": "A4"}]}]})"));
}

}  // namespace
