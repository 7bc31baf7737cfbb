// qdf narrow leads down the levels of a job, and says why it can't.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tool/document.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

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
  EXPECT_THAT(Run("--ink 1 --media pl --print-mode dr --resolution fine").out, EndsWith(R"(
Colour modes (2)
  ID  Display name  Internal name  Colorants   Default
  40  Colour        cmyk           Cyan, Gold  yes
  41  Grey
)"));
}

TEST_F(Narrow, TellsTheWholeDefaultJob) {
  const std::string told = Run("--defaults").out;
  EXPECT_THAT(told, HasSubstr("  Colour mode:   40 Colour (default)\n"
                              "  Media source:  51 Tray (default)\n"));
  EXPECT_THAT(told, HasSubstr("\nPrinter specific text:   Quality=1\n"
                              "Default dither:          Smooth\n"
                              "Default RIP resolution:  -\n\n"));
  EXPECT_THAT(told, EndsWith("\n  Fine    300x600\n  Coarse  -\n\nMargins: none\n"));
  nlohmann::json job = Json("--ink 1 --media gl --defaults");
  EXPECT_EQ(job["choice"].size(), 5U);
  EXPECT_EQ(job["choice"]["resolution"], nlohmann::json::parse(R"({
    "id": 30, "displayName": "300 dpi", "internalName": null, "default": true})"));
  job.erase("choice");
  EXPECT_EQ(job, nlohmann::json::parse(R"({"document": "small.qdf",
    "printerSpecificText": "Quality=1", "defaultProfile": "b.icc", "defaultDither": "Smooth",
    "defaultRipResolution": null,
    "profiles": [{"name": "a.icc", "default": false}, {"name": "b.icc", "default": true}],
    "dithers": [{"name": "Fine", "ripResolution": {"x": 300, "y": 600}, "default": false},
                {"name": "Coarse", "ripResolution": null, "default": false}]})"));
}

TEST_F(Narrow, TakesAnIDBeforeANameAndTheExactNameFirst) {
  const std::pair<const char*, const char*> rows[] = {
      {"--ink 1 --media 10", "Media:  10 Plain\n"},                 // although 12 is called so
      {"--ink 1 --media PL", "Media:  12 10\n"},                    // with case
      {"--ink 1 --media pl", "Media:  10 Plain\n"},                 // with case
      {"--ink 1 --media plain", "Media:  10 Plain\n"},              // without
      {"--ink 1 --media Glossy", "Media:  11 Glossy (default)\n"},  // that of two which is offered
      {"--ink 2 --media 13", "Media:  13 Glossy\n"},                // behind the node that offers
      {"--ink 1 --media 11 --print-mode BE", "Print mode:  21 Best (default)\n"},
      {"--source TRAY", "Media source:  51 Tray (default)\n"},
  };
  for (const auto& [choices, told] : rows) EXPECT_THAT(Run(choices).out, HasSubstr(told));
}

TEST_F(Narrow, ListsTheChoicesForAnUnknownOrAmbiguousName) {
  EXPECT_THAT(Run("--ink mate").err, HasSubstr("\n   2  Matte Black   mt\n   3  Unused "));
  EXPECT_EQ(Run("--ink 2 --media glossy"),
            (Outcome{2, "", R"(qdf: small.qdf: media "glossy" is ambiguous, give an id
Choices (2)
  ID  Display name  Internal name
  11  Glossy        gl
  13  Glossy        gl2
)"}));
}

TEST_F(Narrow, SaysWhichLevelGaveNone) {
  const Refusals rows = {
      {"--ink 3", "no media for ink 3 \"Unused\""},
      {"--ink 3 --defaults", "no media for ink 3 \"Unused\""},
      {"--ink 2 --media 11 --print-mode 20 --resolution 30 --color-mode 40",
       "media 11 \"Glossy\" isn't offered for ink 2 \"Matte Black\""},
      {"--ink 2 --media 10", "no print modes for ink 2 \"Matte Black\", media 10 \"Plain\""},
      {"--ink 2 --media 13 --print-mode 20 --resolution 31 --color-mode 40",
       "colour mode 40 \"Colour\" isn't offered for ink 2 \"Matte Black\", media 13 \"Glossy\", "
       "print mode 20 \"Draft\", resolution 31 \"fine\""},
      {"--source 51 --size 60", "no margins for media source 51 \"Tray\", media size 60 \"A4\""},
      {"--source 51 --size 61", "media size 61 \"A3\" isn't offered for media source 51 \"Tray\""},
  };
  for (const auto& [choices, line] : rows) EXPECT_EQ(Run(choices), Refused("small.qdf: " + line));
}

TEST_F(Narrow, SaysWhy) {
  const Refusals rows = {
      {"--ink 3",
       R"(Ink 3 "Unused" is offered, but no Ink element of the tree holds it, so no media follow. )"
       R"(Ink 1 "Photo Black" or 2 "Matte Black" instead of 3 would give an answer.)"},
      {"--ink 2",
       R"(Media 10 "Plain" may follow ink 2 "Matte Black". 2 nodes stand for that choice, Ink[2] )"
       R"((line 42, column 4) and Ink[3] (line 43, column 4); the first one decides what is )"
       R"(listed. Later nodes also hold media 13 "Glossy", which is never listed.)"},
      {"--ink 2 --media 11",
       R"( It holds only media 10 "Plain". No other holds media 11 "Glossy".)"},
      {"--ink 2 --media 13 --print-mode 20 --resolution 31 --color-mode 41",
       R"( It holds only media 10 "Plain". Media 13 "Glossy" stands in Ink[3], which comes too )"
       R"(late. A host that gives all ids at once still gets the profiles and dithers of )"
       R"(Ink[3]/Media/PrintMode/Resolution/ColorMode (line 43, column 70). No change of one )"
       R"(choice alone gives an answer.)"},
      {"--ink 1 --defaults", R"(The combination gives an answer. It is found in )"
                             R"(Ink[1]/Media/PrintMode/Resolution/ColorMode (line 36, column 8).)"},
      {"--source 51 --size 60",
       R"(No margins are listed for media source 51 "Tray", media size 60 "A4". One node stands )"
       R"(for these choices, MediaSource[2]/MediaSize (line 50, column 25). It has nothing below )"
       R"(it. Media source 50 "Roll" instead of 51 would give an answer.)"},
      {"", R"(Inks 1 "Photo Black", 2 "Matte Black" and 3 "Unused" may be chosen.)"},
  };
  for (const auto& [choices, text] : rows) {
    EXPECT_THAT(Replaced(Run(choices + " --why").out, "\n", " "), HasSubstr(text + ' '));
  }
  nlohmann::json why = Json("--ink 2 --media 13 --why")["job"];
  why.erase("text");
  EXPECT_EQ(why, nlohmann::json::parse(R"({"answers": false, "level": "media",
    "nodes": [
      {"path": "/QDF_Info/Control_Definition/Ink[2]", "line": 42, "column": 4,
       "options": [{"id": 10, "displayName": "Plain", "internalName": "pl"}]},
      {"path": "/QDF_Info/Control_Definition/Ink[3]", "line": 43, "column": 4,
       "options": [{"id": 13, "displayName": "Glossy", "internalName": "gl2"}]}],
    "hidden": [{"id": 13, "displayName": "Glossy", "internalName": "gl2",
                "path": "/QDF_Info/Control_Definition/Ink[3]", "line": 43, "column": 4}],
    "found": {"path": "/QDF_Info/Control_Definition/Ink[3]/Media", "line": 43, "column": 16},
    "lacks": [], "changes": []})"));
}

// Elements whose ids nobody knows stand among the others.
TEST_F(Narrow, SaysWhatTheFoundNodeLacks) {
  std::string text = kSmallDocument;
  text.insert(text.find("<MediaSource ID"),
              "<MediaSource ID=\"7\"><MediaSize ID=\"60\"/></MediaSource>");
  text.insert(text.find("</Resolution>"),
              "<ColorMode ID=\"99\"/>\n<ColorMode ID=\"40\"><ICCProfile>b.icc</ICCProfile>"
              "<ICCProfile>late.icc</ICCProfile><DitherList SupportAll=\"0\">"
              "<Dither Name=\"Fine\"/><Dither Name=\"Late\"/></DitherList></ColorMode>");
  folder_.Write("small.qdf", text);
  const nlohmann::json why = Json("--ink 1 --defaults --why --color-mode 40")["job"];
  const std::string later = "Ink[1]/Media/PrintMode/Resolution/ColorMode[3]";
  EXPECT_THAT(std::string(why["text"]),
              EndsWith("/ColorMode[1] (line 36, column 8); " + later +
                       " (line 42, column 2), which would fit too, is never asked. The first one "
                       "lacks profile \"late.icc\" and dither \"Late\" of " +
                       later + '.'));
  EXPECT_EQ(why["lacks"][1],
            nlohmann::json::parse(R"({"what": "dither", "name": "Late", "line": 42, "column": 2,
    "path": "/QDF_Info/Control_Definition/Ink[1]/Media/PrintMode/Resolution/ColorMode[3]"})"));
  EXPECT_EQ(Json("--source 51 --size 60 --why")["mediaSource"]["nodes"][0]["path"],
            "/QDF_Info/MediaSource_Control/MediaSource[3]/MediaSize");
}

// The second node of ink 2 is never asked, and two nodes for print mode 3 differ in what they have.
TEST_F(Narrow, KnowsTheChangesThatGiveAnAnswer) {
  folder_.Write("small.qdf",
                DocumentText{.InkList = Entries("1;2"),
                             .MediaList = Entries("1;2;3"),
                             .PrintModeList = Entries("1;2;3"),
                             .Control = Control("[1[1,2[1[1[1]];3];3[2[1[1]]]];"
                                                "2[1[2[1[1]]];2[1,3[1]]];2[3[3[1[1]]]]]")}
                    .Text());
  const Refusals rows = {
      {"--ink 1 --media 1 --print-mode 3", "Print mode 1 instead of 3"},
      {"--ink 2 --media 3 --print-mode 3", "Media 2 instead of 3"},
      {"--ink 2 --media 1 --print-mode 1",
       "Ink 1 instead of 2, or media 2 instead of 1, or print mode 2 instead of 1"},
      {"--ink 1 --media 3 --print-mode 3", "Print mode 2 instead of 3"},
  };
  for (const auto& [choices, changes] : rows) {
    const nlohmann::json job = Json(choices + " --why")["job"];
    EXPECT_THAT(std::string(job["text"]), HasSubstr(". " + changes + " would give an answer."));
    EXPECT_EQ(job["answers"], false);
  }
  EXPECT_EQ(Json(rows[0].first + " --why")["job"]["changes"], nlohmann::json::parse(R"([
      {"level": "printMode", "id": 1, "displayName": "", "internalName": ""}])"));
}

}  // namespace
