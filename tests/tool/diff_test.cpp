#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/documents.h"
#include "tests/tool/document.h"

namespace {

using testing::HasSubstr;

using Edit = std::pair<std::string, std::string>;

// Every place of each first text is replaced by the second.
std::string Edited(const std::vector<Edit>& edits) {
  std::string text = kSmallDocument;
  for (const auto& [from, to] : edits) {
    EXPECT_THAT(text, HasSubstr(from));
    text = Replaced(text, from, to);
  }
  return text;
}

class Diff : public QdfTest {
 protected:
  Diff() { folder_.Write("a.qdf", kSmallDocument); }

  Outcome With(const std::string& text, const Words& more = {}) const {
    folder_.Write("b.qdf", text);
    Words words = {"diff", "a.qdf", "b.qdf"};
    words.insert(words.end(), more.begin(), more.end());
    return RunWords(words);
  }
};

std::string Head(const std::string& result) {
  return "First:   a.qdf\nSecond:  b.qdf\nResult:  " + result + '\n';
}

TEST_F(Diff, LooksThroughOrderNodesAndIDs) {
  const std::string same =
      Edited({{"ID=\"10,11,12\"", "ID=\"12,10,10,77,11\""},
              {"ID=\"40,41\"", "ID=\"41,40\""},
              {"<Dither Name=\"Coarse\"",
               "<Dither Name=\"Fine\" RipResolution=\"72\"/><Dither Name=\"Coarse\""},
              {"</Control_Definition>", "<Ink ID=\"3\"/></Control_Definition>"}});
  EXPECT_EQ(With(same), (Outcome{0, Head("equal in meaning")}));
  // One medium was behind the node that is asked, the other one is now; nothing follows that.
  const std::string deadEnd = "<Ink ID=\"2\"><Media ID=\"10\"/></Ink>";
  const std::string later = deadEnd + "</Control_Definition>";
  EXPECT_EQ(With(Edited({{deadEnd, ""}, {"</Control_Definition>", later}})),
            (Outcome{1, Head("different") + R"(
Dead ends gone (1)
  Ink          Media  How many
  Matte Black  Plain         1

Settings of combinations (2)
  Setting               Before  After         For          How many
  Default media         Plain   Glossy (gl2)  Matte Black         1
  Offered step by step  no      yes           Matte Black         1
)"}));
  EXPECT_EQ(With(Edited({{"<ID>12</ID>", "<ID>112</ID>"}, {"10,11,12", "10,11,112"}})),
            (Outcome{0, Head("equal in meaning, but some ids differ") + R"(
Lists (1)
  List   Kept  Renumbered  Changed  New  Gone
  Media     3           1        0    0     0

Media (1)
  Change       ID  Formerly  Display name  Internal name  What changed
  renumbered  112        12  10            PL
)"}));
}

// A path that stops on its way is no combination, and one that now goes on is won.
TEST_F(Diff, TellsDeadEndsApartFromCombinations) {
  const std::string text = Edited(
      {{"<Ink ID=\"2\"><Media ID=\"10\"/></Ink>", "<Ink ID=\"2\"><Media ID=\"11,12\"/></Ink>"},
       {"<MediaSize ID=\"60\"/>", ""}});
  EXPECT_EQ(With(text), (Outcome{1, Head("different") + R"(
Dead ends gone (1)
  Ink          Media  How many
  Matte Black  Plain         1

Dead ends new (1)
  Ink          Media                   How many
  Matte Black  every but Glossy (gl2)         2

Settings of combinations (1)
  Setting        Before  After  For          How many
  Default media  Plain   10     Matte Black         1

Media source combinations
  Before:  5
  After:   4
  Kept:    4
  Lost:    1
  Won:     0

Groups of media source combinations lost (1)
  Media source  How many
  Tray                 1

Dead ends of media sources new (1)
  Media source  How many
  Tray                 1

Settings of media sources (1)
  Setting             Before  After  For   How many
  Default media size  A4      -      Tray         1
)"}));
  EXPECT_EQ(nlohmann::json::parse(With(text, {"--json"}).out)["deadEndsNew"][0]["media"],
            nlohmann::json({{"except", {"Glossy (gl2)"}}}));
  // Without margins it is one.
  const Edit margins = {"<MediaSize ID=\"60\"/>", "<MediaSize ID=\"60\" MarginIDList=\"70\"/>"};
  EXPECT_THAT(With(Edited({margins})).out, HasSubstr(R"( combinations lost (1)
  Media source  Margins  How many
  Tray          none            1

Groups of media source combinations won (1)
  Media source  How many
  Tray                 1
)"));
}

TEST_F(Diff, TellsChangesByNameAndTheWeightiestFirst) {
  const std::string changed = Edited({
      {"<ProductType>small", "<ProductType>large"},
      {"<DisplayName>Draft<", "<DisplayName>Fast<"},
      {"<ID>21</ID><InternalName>be</InternalName><DisplayName>Best",
       "<ID>22</ID><InternalName>su</InternalName><DisplayName>Super"},
      {"ID=\"20,21\"", "ID=\"20,22\""},
      {"<Value>600x1200", "<Value>600"},
      {"<ICCProfile>a.icc</ICCProfile>", ""},
      {"<MediaSize ID=\"60\"/>", "<MediaSize ID=\"60,61\"/>"},
  });
  EXPECT_EQ(With(changed), (Outcome{1, Head("different") + R"(
Header (1)
  Field         Before  After
  Product type  small   large

Lists (2)
  List         Kept  Renumbered  Changed  New  Gone
  Print modes     0           0        1    1     1
  Resolutions     1           0        1    0     0

Print modes (3)
  Change   ID  Formerly  Display name  Internal name  What changed
  gone     21            Best          be
  new      22            Super         su
  changed  20            Fast          dr             Display name: Draft becomes Fast

Resolutions (1)
  Change   ID  Formerly  Display name  What changed
  changed  31            fine          Y: 1200 becomes 600

Combinations
  Before:  25
  After:   25
  Kept:    13
  Lost:    12
  Won:     12

Groups of combinations lost (1)
  Ink          Print mode  How many
  Photo Black  Best              12

Groups of combinations won (1)
  Ink          Print mode  How many
  Photo Black  Super             12

Settings of combinations (2)
  Setting             Before        After  For          How many
  Default print mode  Best          Fast   Photo Black         3
  Profiles            a.icc, b.icc  b.icc  Photo Black        12

Media source combinations
  Before:  5
  After:   6
  Kept:    5
  Lost:    0
  Won:     1

Groups of media source combinations won (1)
  Media source  Media size  How many
  Tray          A3                 1
)"}));
}

TEST_F(Diff, NamesNoneWhereAllThatReachSoFarAreMeant) {
  const Edit noSecondInk = {"<Ink ID=\"2\"><Media ID=\"13\">", "<Ink ID=\"77\"><Media ID=\"13\">"};
  folder_.Write("a.qdf", Edited({noSecondInk}));
  EXPECT_EQ(With(Edited({noSecondInk, {"Quality=1", "Quality=2"}})),
            (Outcome{1, Head("different") + R"(
Settings of combinations (1)
  Setting                Before     After      For          How many
  Printer specific text  Quality=1  Quality=2  all of them        24
)"}));
}

TEST_F(Diff, ComparesColorantsByTheirPlaces) {
  const std::string gold = "<X IsSpotColor=\"1\" IsPrint=\"0\"><DisplayName>Gold</DisplayName></X>";
  EXPECT_THAT(With(Edited({{gold, ""}, {"<X Shape=", gold + "<X Shape="}})).out,
              HasSubstr("Colorants: Cyan, Gold becomes Gold, Cyan"));
  EXPECT_THAT(With(Edited({{"<X IsSpot", "<X Angle=\"45\" IsSpot"}})).out,
              HasSubstr("Gold, Angle as a setting: 0 becomes 45"));
}

TEST_F(Diff, ComparesTheSettingsThatAreHandedOut) {
  const struct {
    Edit edit;
    const char* told;
  } rows[] = {
      {{" DefaultInk=\"1\"", ""}, ""},
      {{" DefaultInk=\"1\"", " DefaultInk=\"99\""}, ""},
      {{" DefaultInk=\"1\"", " DefaultInk=\"3\""}, "Default ink  Photo Black  Unused"},
      {{" DefaultMedia=\"11\"", ""}, "Default media  Glossy (gl)  10"},
      {{" DefaultColorMode=\"99\"", ""}, ""},
      {{" DefaultColorMode=\"99\"", " DefaultColorMode=\"40\""}, ""},
      {{" DefaultMarginID=\"71\"", ""}, "Default margins  wide    narrow"},
      {{"DefaultICCProfile=\"b.icc\"", "DefaultICCProfile=\"other\""},
       "Default profile  b.icc   -  "},
      {{"<ICCProfile>a.icc", "<ICCProfile>all"}, "Profiles  a.icc, b.icc  ALL"},
      {{"<Dither Name=\"Coarse\"/>", "<Dither Name=\"All\"/>"}, "Dithers  Fine, Coarse  ALL"},
  };
  for (const auto& row : rows) {
    const Outcome outcome = With(Edited({row.edit}));
    EXPECT_EQ(outcome.code, *row.told == '\0' ? 0 : 1) << row.edit.second;
    EXPECT_THAT(outcome.out, HasSubstr(row.told));
  }
}

// The lists begin with the same items.
TEST_F(Diff, TellsOfLongListsWhatDiffers) {
  const std::string last = "<ICCProfile>b.icc</ICCProfile>";
  const auto with = [&](const std::string& more) { return Edited({{last, last + more}}); };
  folder_.Write("a.qdf", with("<ICCProfile>c</ICCProfile><ICCProfile>d</ICCProfile>"));
  const struct {
    const char* profiles;
    const char* told;
  } rows[] = {
      {"<ICCProfile>c</ICCProfile><ICCProfile>e</ICCProfile>", "Profiles  d       e      "},
      {"<ICCProfile>c</ICCProfile>", "Profiles  d       only the others  "},
      {"<ICCProfile>d</ICCProfile><ICCProfile>c</ICCProfile>",
       "Profiles  a.icc, b.icc and 2 more  the same in another order  "},
  };
  for (const auto& row : rows) {
    EXPECT_THAT(With(with(row.profiles)).out, HasSubstr(row.told));
  }
}

TEST_F(Diff, TellsProgramsTheSameFromEitherSide) {
  const std::string changed = Edited({{"ID=\"30,31\"", "ID=\"30\""}});
  const auto there = nlohmann::json::parse(With(changed, {"--json"}).out);
  EXPECT_EQ(there["equal"], false);
  EXPECT_EQ(there["combinationsLost"], nlohmann::json::parse(R"([{"ink": {"only": ["Photo Black"]},
      "media": {"every": true}, "printMode": {"every": true}, "resolution": {"only": ["fine"]},
      "colorMode": {"every": true}, "count": 12}])"));
  folder_.Write("a.qdf", changed);
  const auto back = nlohmann::json::parse(With(kSmallDocument, {"--json"}).out);
  EXPECT_EQ(back["combinationsWon"], there["combinationsLost"]);
  EXPECT_EQ(back["combinationsLost"], there["combinationsWon"]);
}

TEST_F(Diff, SaysWithCode2WhatCannotBeCompared) {
  EXPECT_EQ(With("<Q>"), Refused("b.qdf:1:1: this element is not closed", 2));
  EXPECT_EQ(Run("diff a.qdf"), Refused("B is required; try 'qdf diff --help'", 2));
  // A million combinations.
  std::vector<std::string> ids;
  for (int i = 1; i <= 1000; ++i) ids.push_back(std::to_string(i));
  const std::string entries = Entries(Join(ids, ";"));
  const std::string large =
      DocumentText{.InkList = entries, .MediaList = entries, .Control = Control(">1[ALL>1[ALL]]")}
          .Text();
  folder_.Write("a.qdf", large);
  EXPECT_EQ(With(large), (Outcome{0, R"(First:         a.qdf
Second:        b.qdf
Result:        equal in meaning
Combinations:  too many to compare
)"}));
  EXPECT_EQ(With(large + '\n'), (Outcome{2, R"(First:         a.qdf
Second:        b.qdf
Result:        not known
Combinations:  too many to compare
)"}));
}

}  // namespace
