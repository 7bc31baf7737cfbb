#include <gtest/gtest.h>

#include "qdf/definition/anewcoloropt.h"
#include "tests/files.h"
#include "tests/tool/document.h"
#include "tests/tool/run.h"

namespace {

TEST(Show, TellsTheHeaderAndEachField) {
  const TempFolder folder;
  folder.Write("small.qdf", kSmallDocument);
  const Outcome shown = RunTool({"show", "small.qdf"}, {folder.Path()});
  EXPECT_EQ(shown, (Outcome{0, R"(Document:           small.qdf
Product type:       small
Translation table:  small.txt
Custom media file:  -
Media size limits:  10, 20, 30, 40
Minimum margins:    5, 6, 7, 8

Inks (3)
  ID  Display name  Internal name
   1  Photo Black   ph
   2  Matte Black   mt
   3  Unused        un

Media (4)
  ID  Display name  Internal name  Customizable  Unlocalized name
  12  10            PL                        0  10
  11  Glossy        gl                        0  Glossy
  10  Plain         pl                        0  Plain
  13  Glossy        gl2                       7  Glossy

Print modes (2)
  ID  Display name  Internal name  Unlocalized name
  20  Draft         dr             Draft
  21  Best          be             Best

Resolutions (2)
  ID  Display name    X     Y
  30  300 dpi       300   300
  31  fine          600  1200

Colour modes (2)
  ID  Display name  Internal name  Colorant  Internal  Depth  Spot  Print  Shape    Frequency  Angle
  40  Colour        cmyk           Cyan      C             2     0      1  Round           60    0.1
                                   Gold                    1     1      0  Diamond         55     45
  41  Grey                                                 1     0      1  Diamond         55     45

Media sources (2)
  ID  Display name  Internal name
  50  Roll          ro
  51  Tray          tr

Media sizes (2)
  ID  Display name  Internal name  PCL id  Roll  First  Second
  60  A4                                8     9    595     842
  61  A3                                0     0      0       0

Margins (2)
  ID  Display name  Internal name  First  Second  Third  Fourth
  70  narrow                           1       2      3       4
  71  wide                             0       0      0       0
)"}));
}

constexpr const char* kSmallJson = R"({
  "document": "small.qdf", "productType": "small", "translationTable": "small.txt",
  "customMediaFile": "", "mediaSizeLimits": [10, 20, 30, 40], "minimumMargins": [5, 6, 7, 8],
  "inks": [{"id": 1, "displayName": "Photo Black", "internalName": "ph"},
           {"id": 2, "displayName": "Matte Black", "internalName": "mt"},
           {"id": 3, "displayName": "Unused", "internalName": "un"}],
  "media": [{"id": 12, "displayName": "10", "internalName": "PL", "isCustomizableMedia": 0,
             "unlocalizedName": "10"},
            {"id": 11, "displayName": "Glossy", "internalName": "gl", "isCustomizableMedia": 0,
             "unlocalizedName": "Glossy"},
            {"id": 10, "displayName": "Plain", "internalName": "pl", "isCustomizableMedia": 0,
             "unlocalizedName": "Plain"},
            {"id": 13, "displayName": "Glossy", "internalName": "gl2", "isCustomizableMedia": 7,
             "unlocalizedName": "Glossy"}],
  "printModes": [
      {"id": 20, "displayName": "Draft", "internalName": "dr", "unlocalizedName": "Draft"},
      {"id": 21, "displayName": "Best", "internalName": "be", "unlocalizedName": "Best"}],
  "resolutions": [{"id": 30, "displayName": "300 dpi", "xResolution": 300, "yResolution": 300},
                  {"id": 31, "displayName": "fine", "xResolution": 600, "yResolution": 1200}],
  "colorModes": [
      {"id": 40, "displayName": "Colour", "internalName": "cmyk", "colorants": [
          {"displayName": "Cyan", "internalName": "C", "colorDepth": 2, "isSpotColor": 0,
           "isPrint": 1, "shape": "Round", "frequency": 60, "angle": 0.1},
          {"displayName": "Gold", "internalName": "", "colorDepth": 1, "isSpotColor": 1,
           "isPrint": 0, "shape": "Diamond", "frequency": 55, "angle": 45}]},
      {"id": 41, "displayName": "Grey", "internalName": "", "colorants": [
          {"displayName": "", "internalName": "", "colorDepth": 1, "isSpotColor": 0,
           "isPrint": 1, "shape": "Diamond", "frequency": 55, "angle": 45}]}],
  "mediaSources": [{"id": 50, "displayName": "Roll", "internalName": "ro"},
                   {"id": 51, "displayName": "Tray", "internalName": "tr"}],
  "mediaSizes": [{"id": 60, "displayName": "A4", "internalName": "", "pclId": 8, "isRoll": 9,
                  "firstDimension": 595, "secondDimension": 842},
                 {"id": 61, "displayName": "A3", "internalName": "", "pclId": 0, "isRoll": 0,
                  "firstDimension": 0, "secondDimension": 0}],
  "margins": [{"id": 70, "displayName": "narrow", "internalName": "", "firstMargin": 1,
               "secondMargin": 2, "thirdMargin": 3, "fourthMargin": 4},
              {"id": 71, "displayName": "wide", "internalName": "", "firstMargin": 0,
               "secondMargin": 0, "thirdMargin": 0, "fourthMargin": 0}]
})";

// With what programs see of each colorant besides: defaults, but that an angle is a setting as
// well.
nlohmann::json SmallJson() {
  nlohmann::json all = nlohmann::json::parse(kSmallJson);
  const auto more = nlohmann::json::parse(R"({
    "setting0": 4, "setting4": 0, "setting5": 0, "setting6": 0, "setting7": 0, "setting8": -1,
    "setting9": 1, "setting10": 100, "colorantSetting5": 0,
    "curveFlags": [1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1]})");
  for (nlohmann::json& colorMode : all["colorModes"]) {
    for (nlohmann::json& colorant : colorMode["colorants"]) {
      colorant.update(more);
      for (int i = 0; i < ANewColorOpt::kCurvePoints; ++i) {
        colorant["curveValues"].push_back(i / 20.0);
      }
    }
  }
  all["colorModes"][0]["colorants"][0]["setting5"] = 0.1;
  return all;
}

TEST(Show, TellsProgramsTheSameAndEachListByItself) {
  const TempFolder folder;
  folder.Write("small.qdf", kSmallDocument);
  const nlohmann::json all = RunJson({"show", "small.qdf"}, {folder.Path()});
  EXPECT_EQ(all, SmallJson());
  const struct {
    const char* name;
    const char* key;
  } lists[] = {{"inks", "inks"},
               {"media", "media"},
               {"print-modes", "printModes"},
               {"resolutions", "resolutions"},
               {"color-modes", "colorModes"},
               {"media-sources", "mediaSources"},
               {"media-sizes", "mediaSizes"},
               {"margins", "margins"}};
  for (const auto& list : lists) {
    const nlohmann::json one = RunJson({"show", "small.qdf", "--list", list.name}, {folder.Path()});
    const nlohmann::json expected = {{"document", "small.qdf"}, {list.key, all[list.key]}};
    EXPECT_EQ(one, expected);
  }
}

}  // namespace
