#include <gtest/gtest.h>

#include <set>

#include "tests/documents.h"
#include "tests/tool/document.h"

namespace {

class Narrow : public SmallDocumentTest {
 protected:
  Outcome Run(const std::string& choices) const {
    return SmallDocumentTest::Run("narrow small.qdf " + choices);
  }
  nlohmann::json Json(const std::string& choices) const {
    return SmallDocumentTest::Json("narrow small.qdf " + choices);
  }
};

TEST_F(Narrow, ListsWhatTheNextLevelOffers) {
  EXPECT_EQ(Run("--ink 1 --media pl --print-mode dr --resolution fine"), (Outcome{0, R"(Choice
  Ink:         1 Photo Black (default)
  Media:       10 Plain
  Print mode:  20 Draft
  Resolution:  31 fine

Colour modes (2)
  ID  Display name  Internal name  Colorants   Default
  40  Colour        cmyk           Cyan, Gold  yes
  41  Grey
)"}));
}

TEST_F(Narrow, TellsTheWholeDefaultJob) {
  EXPECT_EQ(Run("--defaults"), (Outcome{0, R"(Choice
  Ink:           1 Photo Black (default)
  Media:         11 Glossy (default)
  Print mode:    21 Best (default)
  Resolution:    30 300 dpi (default)
  Colour mode:   40 Colour (default)
  Media source:  51 Tray (default)
  Media size:    60 A4 (default)

Printer specific text:   Quality=1
Default dither:          Smooth
Default RIP resolution:  -

Profiles (2)
  Name   Default
  a.icc
  b.icc  yes

Dithers (2)
  Name    RIP resolution  Default
  Fine    300x600
  Coarse  -

Margins: none
)"}));
}

TEST_F(Narrow, TellsProgramsTheSame) {
  EXPECT_EQ(Json("--ink 1 --media gl --defaults"), nlohmann::json::parse(R"({
    "document": "small.qdf",
    "choice": {
      "ink": {"id": 1, "displayName": "Photo Black", "internalName": "ph", "default": true},
      "media": {"id": 11, "displayName": "Glossy", "internalName": "gl", "default": true},
      "printMode": {"id": 21, "displayName": "Best", "internalName": "be", "default": true},
      "resolution": {"id": 30, "displayName": "300 dpi", "internalName": null, "default": true},
      "colorMode": {"id": 40, "displayName": "Colour", "internalName": "cmyk", "default": true}},
    "printerSpecificText": "Quality=1", "defaultProfile": "b.icc", "defaultDither": "Smooth",
    "defaultRipResolution": null,
    "profiles": [{"name": "a.icc", "default": false}, {"name": "b.icc", "default": true}],
    "dithers": [{"name": "Fine", "ripResolution": {"x": 300, "y": 600}, "default": false},
                {"name": "Coarse", "ripResolution": null, "default": false}]})"));
}

TEST_F(Narrow, TakesAnIDBeforeANameAndTheExactNameFirst) {
  const struct {
    const char* choices;
    const char* level;
    int id;
  } rows[] = {
      {"--ink 1 --media 10", "media", 10},      // an id, although 12 is called so
      {"--ink 1 --media PL", "media", 12},      // with case
      {"--ink 1 --media pl", "media", 10},      // with case
      {"--ink 1 --media plain", "media", 10},   // without
      {"--ink 1 --media Glossy", "media", 11},  // the one of two that is offered
      {"--ink 2 --media 13", "media", 13},      // in the tree, but behind the node that offers
      {"--ink 1 --media 11 --print-mode BE", "printMode", 21},
      {"--source TRAY", "mediaSource", 51},
  };
  for (const auto& row : rows) {
    const nlohmann::json answer = Json(row.choices);
    ASSERT_TRUE(answer.is_object()) << row.choices;
    EXPECT_EQ(answer["choice"][row.level]["id"], row.id) << row.choices;
  }
}

TEST_F(Narrow, ListsTheChoicesForAnUnknownOrAmbiguousName) {
  EXPECT_EQ(Run("--ink mate"), (Outcome{2, "", R"(qdf: small.qdf: ink "mate" is unknown
Choices (3)
  ID  Display name  Internal name
   2  Matte Black   mt
   3  Unused        un
   1  Photo Black   ph
)"}));
  EXPECT_EQ(Run("--ink 2 --media glossy"),
            (Outcome{2, "", R"(qdf: small.qdf: media "glossy" is ambiguous, give an id
Choices (2)
  ID  Display name  Internal name
  11  Glossy        gl
  13  Glossy        gl2
)"}));
}

TEST_F(Narrow, SaysWhichLevelGaveNone) {
  const std::pair<const char*, const char*> rows[] = {
      {"--ink 3", "no media for ink 3 \"Unused\""},
      {"--ink 3 --defaults", "no media for ink 3 \"Unused\""},
      {"--ink 2 --media 11", "media 11 \"Glossy\" isn't offered for ink 2 \"Matte Black\""},
      {"--ink 2 --media 11 --print-mode 20 --resolution 30 --color-mode 40",
       "media 11 \"Glossy\" isn't offered for ink 2 \"Matte Black\""},
      {"--ink 2 --media 10", "no print modes for ink 2 \"Matte Black\", media 10 \"Plain\""},
      {"--ink 2 --media 13 --print-mode 20 --resolution 31 --color-mode 40",
       "colour mode 40 \"Colour\" isn't offered for ink 2 \"Matte Black\", media 13 \"Glossy\", "
       "print mode 20 \"Draft\", resolution 31 \"fine\""},
      {"--source 51 --size 60", "no margins for media source 51 \"Tray\", media size 60 \"A4\""},
      {"--source 51 --size 61", "media size 61 \"A3\" isn't offered for media source 51 \"Tray\""},
  };
  for (const auto& [choices, line] : rows) {
    EXPECT_EQ(Run(choices), Refused(std::string("small.qdf: ") + line));
  }
}

TEST_F(Narrow, SaysWhy) {
  const std::pair<const char*, const char*> rows[] = {
      {"--ink 3", R"(
Ink 3 "Unused" is offered, but no Ink element of the tree holds it, so no media
follow. Ink 1 "Photo Black" or 2 "Matte Black" instead of 3 would give an
answer.
)"},
      {"--ink 3 --media 11", R"(
Ink 3 "Unused" is offered, but no Ink element of the tree holds it, so no media
follow. Ink 1 "Photo Black" instead of 3 would give an answer.
)"},
      {"--ink 2", R"(
Media 10 "Plain" may follow ink 2 "Matte Black". 2 nodes stand for that choice,
Ink[2] (line 55, column 4) and Ink[3] (line 56, column 4); the first one decides
what is listed. Later nodes also hold media 13 "Glossy", which is never listed.
)"},
      {"--ink 2 --media 11", R"(
Media 11 "Glossy" isn't listed for ink 2 "Matte Black". 2 nodes stand for that
choice, Ink[2] (line 55, column 4) and Ink[3] (line 56, column 4); the first one
decides what is listed. It holds only media 10 "Plain". No other holds media 11
"Glossy". Ink 1 "Photo Black" instead of 2 would give an answer.
)"},
      {"--ink 2 --media 10 --defaults", R"(
No print modes are listed for ink 2 "Matte Black", media 10 "Plain". One node
stands for these choices, Ink[2]/Media (line 55, column 16). It has nothing
below it. Ink 1 "Photo Black" instead of 2 would give an answer.
)"},
      {"--ink 2 --media 13 --print-mode 20 --resolution 31 --color-mode 41", R"(
Media 13 "Glossy" isn't listed for ink 2 "Matte Black". 2 nodes stand for that
choice, Ink[2] (line 55, column 4) and Ink[3] (line 56, column 4); the first one
decides what is listed. It holds only media 10 "Plain". Media 13 "Glossy" stands
in Ink[3], which comes too late. A host that gives all ids at once still gets
the profiles and dithers of Ink[3]/Media/PrintMode/Resolution/ColorMode (line
56, column 70). No change of one choice alone gives an answer.
)"},
      {"--ink 1 --defaults", R"(
The combination gives an answer. It is found in
Ink[1]/Media/PrintMode/Resolution/ColorMode (line 49, column 8).
)"},
      {"--source 51 --size 60", R"(
No margins are listed for media source 51 "Tray", media size 60 "A4". One node
stands for these choices, MediaSource[2]/MediaSize (line 63, column 25). It has
nothing below it. Media source 50 "Roll" instead of 51 would give an answer.
)"},
  };
  for (const auto& [choices, text] : rows) {
    const Outcome outcome = Run(choices + std::string(" --why"));
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(From("\n\n", outcome), std::string("\n") + text);
  }
  EXPECT_TRUE(std::string(Json("--why")["job"]["text"])
                  .starts_with("Inks 1 \"Photo Black\", 2 \"Matte Black\" and 3 \"Unused\" may"));
  nlohmann::json why = Json("--ink 2 --media 13 --why")["job"];
  EXPECT_TRUE(std::string(why["text"]).starts_with("Media 13 \"Glossy\" isn't listed"));
  why.erase("text");
  EXPECT_EQ(why, nlohmann::json::parse(R"({"answers": false, "level": "media",
    "nodes": [
      {"path": "/QDF_Info/Control_Definition/Ink[2]", "line": 55, "column": 4,
       "options": [{"id": 10, "displayName": "Plain", "internalName": "pl"}]},
      {"path": "/QDF_Info/Control_Definition/Ink[3]", "line": 56, "column": 4,
       "options": [{"id": 13, "displayName": "Glossy", "internalName": "gl2"}]}],
    "hidden": [{"id": 13, "displayName": "Glossy", "internalName": "gl2",
                "path": "/QDF_Info/Control_Definition/Ink[3]", "line": 56, "column": 4}],
    "found": {"path": "/QDF_Info/Control_Definition/Ink[3]/Media", "line": 56, "column": 16},
    "lacks": [], "changes": []})"));
}

// Elements whose ids nobody knows stand among the others.
TEST_F(Narrow, SaysWhatTheFoundNodeLacks) {
  std::string text = kSmallDocument;
  text.insert(text.find("<MediaSource ID"),
              "<MediaSource ID=\"7\"><MediaSize ID=\"60\"/></MediaSource>");
  const std::string again =
      "<ColorMode ID=\"99\"/>\n<ColorMode ID=\"40\"><ICCProfile>b.icc</ICCProfile>"
      "<ICCProfile>late.icc</ICCProfile><DitherList SupportAll=\"0\">"
      "<Dither Name=\"Fine\"/><Dither Name=\"Late\"/></DitherList></ColorMode>";
  text.insert(text.find("</Resolution>"), again);
  folder_.Write("small.qdf", text);
  const nlohmann::json why = Json("--ink 1 --defaults --why --color-mode 40")["job"];
  const std::string first = "Ink[1]/Media/PrintMode/Resolution/ColorMode[1] (line 49, column 8)";
  const std::string later = "Ink[1]/Media/PrintMode/Resolution/ColorMode[3]";
  EXPECT_EQ(
      why["text"],
      "The combination gives an answer. It is found in " + first + "; " + later +
          " (line 55, column 2), which would fit too, is never asked. The first one lacks profile "
          "\"late.icc\" and dither \"Late\" of " +
          later + '.');
  EXPECT_EQ(why["lacks"][1],
            nlohmann::json::parse(R"({"what": "dither", "name": "Late", "line": 55, "column": 2,
    "path": "/QDF_Info/Control_Definition/Ink[1]/Media/PrintMode/Resolution/ColorMode[3]"})"));
  EXPECT_EQ(Json("--source 51 --size 60 --why")["mediaSource"]["nodes"][0]["path"],
            "/QDF_Info/MediaSource_Control/MediaSource[3]/MediaSize");
}

// All single changes of a choice of three are tried.
TEST_F(Narrow, KnowsTheChangesThatGiveAnAnswer) {
  folder_.Write("small.qdf",
                DocumentText{.InkList = Entries("1;2"),
                             .MediaList = Entries("1;2;3"),
                             .PrintModeList = Entries("1;2;3"),
                             .Control = Control("[1[1,2[1[1[1]];3];3[2[1[1]]]];"
                                                "2[1[2[1[1]]];2[1,3[1]]];2[3[3[1[1]]]]]")}
                    .Text());
  const auto ask = [&](const std::vector<int>& ids, const char* how) {
    AString choices;
    choices.Format("--ink %d --media %d --print-mode %d %s", ids[0], ids[1], ids[2], how);
    return Json(static_cast<const char*>(choices));
  };
  const std::string keys[] = {"ink", "media", "printMode"};
  for (const std::vector<int>& choice : {std::vector{1, 1, 3}, {2, 3, 3}, {2, 1, 1}, {1, 3, 3}}) {
    const nlohmann::json why = ask(choice, "--why")["job"];
    EXPECT_EQ(why["answers"], false);
    std::set<std::vector<int>> told;
    for (const auto& change : why["changes"]) {
      std::vector<int> changed = choice;
      changed[static_cast<std::size_t>(std::find(keys, keys + 3, change["level"]) - keys)] =
          change["id"];
      told.insert(changed);
    }
    for (std::size_t level = 0; level < 3; ++level) {
      for (int id = 1; id <= (level == 0 ? 2 : 3); ++id) {
        std::vector<int> changed = choice;
        changed[level] = id;
        const bool answers = ask(changed, "--why")["job"]["answers"];
        EXPECT_EQ(told.count(changed) != 0, answers) << level << ' ' << id;
        if (answers) {
          EXPECT_FALSE(ask(changed, "")["resolutions"].empty());
        }
      }
    }
  }
}

}  // namespace
