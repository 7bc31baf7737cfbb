#include <gtest/gtest.h>

#include "tests/tool/document.h"

namespace {

using Show = SmallDocumentTest;

TEST_F(Show, TellsTheHeaderAndEachField) {
  const Outcome shown = Run("show small.qdf");
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

// The first record of each list. Of a colorant's values only those that nobody may see elsewhere.
TEST_F(Show, TellsProgramsTheSameAndEachListByItself) {
  const struct {
    const char* name;
    const char* key;
    const char* first;
  } lists[] = {
      {"inks", "inks", R"({"id": 1, "displayName": "Photo Black", "internalName": "ph"})"},
      {"media", "media", R"({"id": 12, "displayName": "10", "internalName": "PL",
          "isCustomizableMedia": 0, "unlocalizedName": "10"})"},
      {"print-modes", "printModes", R"({"id": 20, "displayName": "Draft", "internalName": "dr",
          "unlocalizedName": "Draft"})"},
      {"resolutions", "resolutions",
       R"({"id": 30, "displayName": "300 dpi", "xResolution": 300, "yResolution": 300})"},
      {"color-modes", "colorModes", R"({"id": 40, "displayName": "Colour", "internalName": "cmyk",
          "colorants": [{"displayName": "Cyan", "internalName": "C", "colorDepth": 2,
            "isSpotColor": 0, "isPrint": 1, "shape": "Round", "frequency": 60, "angle": 0.1,
            "setting0": 4, "setting4": 0, "setting5": 0.1, "setting6": 0, "setting7": 0,
            "setting8": -1, "setting9": 1, "setting10": 100, "colorantSetting5": 0}]})"},
      {"media-sources", "mediaSources",
       R"({"id": 50, "displayName": "Roll", "internalName": "ro"})"},
      {"media-sizes", "mediaSizes", R"({"id": 60, "displayName": "A4", "internalName": "",
          "pclId": 8, "isRoll": 9, "firstDimension": 595, "secondDimension": 842})"},
      {"margins", "margins", R"({"id": 70, "displayName": "narrow", "internalName": "",
          "firstMargin": 1, "secondMargin": 2, "thirdMargin": 3, "fourthMargin": 4})"},
  };
  nlohmann::json all = Json("show small.qdf");
  for (const auto& list : lists) {
    const nlohmann::json one = Json(std::string("show small.qdf --list ") + list.name);
    EXPECT_EQ(one, nlohmann::json({{"document", "small.qdf"}, {list.key, all[list.key]}}));
    nlohmann::json first = all[list.key][0];
    if (first.contains("colorants")) {
      first["colorants"].erase(1);
      first["colorants"][0].erase("curveValues");
      first["colorants"][0].erase("curveFlags");
    }
    EXPECT_EQ(first, nlohmann::json::parse(list.first));
    all.erase(list.key);
  }
  EXPECT_EQ(all, nlohmann::json::parse(R"({"document": "small.qdf", "productType": "small",
      "translationTable": "small.txt", "customMediaFile": "",
      "mediaSizeLimits": [10, 20, 30, 40], "minimumMargins": [5, 6, 7, 8]})"));
}

}  // namespace
