// qdf diff compares what documents mean.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tool/document.h"

namespace {

using testing::HasSubstr;

using Edit = std::pair<std::string, std::string>;

// Every place of each first text is replaced by the second.
std::string Edited(const std::vector<Edit>& edits, std::string text = kSmallDocument) {
  for (const auto& [from, to] : edits) {
    EXPECT_THAT(text, HasSubstr(from));
    text = Replaced(text, from, to);
  }
  return text;
}

class Diff : public QdfTest {
 protected:
  Diff() { folder_.Write("a.qdf", kSmallDocument); }

  Outcome With(const std::string& text) const {
    folder_.Write("b.qdf", text);
    return Run("diff a.qdf b.qdf");
  }
  nlohmann::json ToldOf(const std::string& text) const {
    folder_.Write("b.qdf", text);
    return nlohmann::json::parse(Run("diff a.qdf b.qdf --json").out, nullptr, false);
  }
};

TEST_F(Diff, LooksThroughOrderNodesAndIDs) {
  const std::string same =
      Edited({{"ID=\"10,11,12\"", "ID=\"112,10,10,77,11\""},
              {"<ID>12</ID>", "<ID>112</ID>"},
              {"ID=\"40,41\"", "ID=\"41,40\""},
              {"<Dither Name=\"Coarse\"",
               "<Dither Name=\"Fine\" RipResolution=\"72\"/><Dither Name=\"Coarse\""},
              {"</Control_Definition>", "<Ink ID=\"3\"/></Control_Definition>"}});
  const Outcome told = With(same);
  EXPECT_EQ(told.code, 0);
  EXPECT_THAT(told.out,
              HasSubstr("\nResult:  equal in meaning, but some ids differ\n\nLists (1)\n"));
  EXPECT_THAT(told.out, testing::EndsWith("\n  renumbered  112        12  10            PL\n"));
  // One medium was behind the node that is asked, the other one is now; nothing follows that.
  const std::string deadEnd = "<Ink ID=\"2\"><Media ID=\"10\"/></Ink>";
  const std::string later = deadEnd + "</Control_Definition>";
  EXPECT_EQ(From("Dead", With(Edited({{deadEnd, ""}, {"</Control_Definition>", later}}))),
            R"(Dead ends gone (1)
  Ink          Media  How many
  Matte Black  Plain         1

Settings of combinations (2)
  Setting               Before  After         For          How many
  Default media         Plain   Glossy (gl2)  Matte Black         1
  Offered step by step  no      yes           Matte Black         1
)");
}

// A path that stops on its way is no combination, and one that now goes on is won.
TEST_F(Diff, TellsDeadEndsApartFromCombinations) {
  const nlohmann::json told = ToldOf(Edited(
      {{"<Ink ID=\"2\"><Media ID=\"10\"/></Ink>", "<Ink ID=\"2\"><Media ID=\"11,12\"/></Ink>"},
       {"<MediaSize ID=\"60\"/>", ""}}));
  EXPECT_EQ(told["deadEndsNew"][0]["media"], nlohmann::json({{"except", {"Glossy (gl2)"}}}));
  EXPECT_EQ(told["deadEndsNew"][0]["count"], 2);
  EXPECT_EQ(told["mediaSourceCombinations"].dump(),
            R"({"after":4,"before":5,"kept":4,"lost":1,"won":0})");
  for (const char* tray : {"mediaSourceCombinationsLost", "mediaSourceDeadEndsNew"}) {
    EXPECT_EQ(told[tray][0]["mediaSource"], nlohmann::json({{"only", {"Tray"}}})) << tray;
  }
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
  const Outcome told = With(Edited({
      {"<ProductType>small", "<ProductType>large"},
      {"<DisplayName>Draft<", "<DisplayName>Fast<"},
      {"<ID>21</ID><DisplayName>Best</DisplayName><InternalName>be",
       "<ID>22</ID><DisplayName>Super</DisplayName><InternalName>su"},
      {"ID=\"20,21\"", "ID=\"20,22\""},
      {"<Value>600x1200", "<Value>600"},
  }));
  EXPECT_EQ(told.code, 1);
  EXPECT_THAT(told.out, HasSubstr(R"(
Header (1)
  Field         Before  After
  Product type  small   large
)"));
  EXPECT_THAT(told.out, HasSubstr(R"(
Print modes (3)
  Change   ID  Formerly  Display name  Internal name  What changed
  gone     21            Best          be
  new      22            Super         su
  changed  20            Fast          dr             Display name: Draft becomes Fast

Resolutions (1)
  Change   ID  Formerly  Display name  What changed
  changed  31            fine          Y: 1200 becomes 600
)"));
  // All that reach as far as a setting are meant.
  const Edit noSecondInk = {"<Ink ID=\"2\"><Media ID=\"13\">", "<Ink ID=\"77\"><Media ID=\"13\">"};
  folder_.Write("a.qdf", Edited({noSecondInk}));
  EXPECT_THAT(With(Edited({noSecondInk, {"Quality=1", "Quality=2"}})).out,
              HasSubstr("Quality=1  Quality=2  all of them        24\n"));
}

// An empty text for what makes no difference. Of long lists that begin alike what differs is told.
TEST_F(Diff, ComparesWhatIsHandedOutAndColorantsByTheirPlaces) {
  const std::string gold = "<X IsSpotColor=\"1\" IsPrint=\"0\"><DisplayName>Gold</DisplayName></X>";
  const std::string last = "<ICCProfile>b.icc</ICCProfile>";
  const std::string more = "<ICCProfile>c</ICCProfile><ICCProfile>d</ICCProfile>";
  const std::pair<std::vector<Edit>, std::string> rows[] = {
      {{{" DefaultInk=\"1\"", ""}}, ""},
      {{{" DefaultInk=\"1\"", " DefaultInk=\"99\""}}, ""},
      {{{" DefaultInk=\"1\"", " DefaultInk=\"3\""}}, "Default ink  Photo Black  Unused"},
      {{{" DefaultMedia=\"11\"", ""}}, "Default media  Glossy (gl)  10"},
      {{{" DefaultColorMode=\"99\"", ""}}, ""},
      {{{" DefaultColorMode=\"99\"", " DefaultColorMode=\"40\""}}, ""},
      {{{" DefaultMarginID=\"71\"", ""}}, "Default margins  wide    narrow"},
      {{{" DefaultMediaSizeID=\"61\"", ""}}, "Default media size  A3      A4"},
      {{{"</MediaSource_Control>",
         "<MediaSource ID=\"51\"><MediaSize ID=\"61\"/></MediaSource></MediaSource_Control>"}},
       ""},
      {{{"DefaultICCProfile=\"b.icc\"", "DefaultICCProfile=\"other\""}},
       "Default profile  b.icc   -  "},
      {{{"<ICCProfile>a.icc", "<ICCProfile>all"}}, "Profiles  a.icc, b.icc and 2 more  ALL"},
      {{{"<ICCProfile>d", "<ICCProfile>e"}}, "Profiles  d       e      "},
      {{{"<ICCProfile>d</ICCProfile>", ""}}, "Profiles  d       only the others  "},
      {{{"d</ICCProfile>", "x</ICCProfile>"}, {">c<", ">d<"}, {">x<", ">c<"}},
       "Profiles  a.icc, b.icc and 2 more  the same in another order  "},
      {{{"<Dither Name=\"Coarse\"/>", "<Dither Name=\"All\"/>"}}, "Dithers  Fine, Coarse  ALL"},
      {{{gold, ""}, {"<X Shape=", gold + "<X Shape="}}, "Colorants: Cyan, Gold becomes Gold, Cyan"},
      {{{"<X IsSpot", "<X Angle=\"45\" IsSpot"}}, "Gold, Angle as a setting: 0 becomes 45"},
  };
  const std::string first = Edited({{last, last + more}});
  folder_.Write("a.qdf", first);
  for (const auto& [edits, told] : rows) {
    const Outcome outcome = With(Edited(edits, first));
    EXPECT_EQ(outcome.code, told.empty() ? 0 : 1) << edits[0].second;
    EXPECT_THAT(outcome.out, HasSubstr(told));
  }
}

TEST_F(Diff, TellsProgramsTheSameFromEitherSide) {
  const std::string changed = Edited({{"ID=\"30,31\"", "ID=\"30\""}});
  const nlohmann::json there = ToldOf(changed);
  EXPECT_EQ(there["equal"], false);
  EXPECT_EQ(there["combinationsLost"], nlohmann::json::parse(R"([{"ink": {"only": ["Photo Black"]},
      "media": {"every": true}, "printMode": {"every": true}, "resolution": {"only": ["fine"]},
      "colorMode": {"every": true}, "count": 12}])"));
  folder_.Write("a.qdf", changed);
  const nlohmann::json back = ToldOf(kSmallDocument);
  EXPECT_EQ(back["combinationsWon"], there["combinationsLost"]);
  EXPECT_EQ(back["combinationsLost"], there["combinationsWon"]);
}

TEST_F(Diff, SaysWithCode2WhatCannotBeCompared) {
  EXPECT_EQ(With("<Q>"), Refused("b.qdf:1:1: this element is not closed", 2));
  // A million combinations.
  std::string ids;
  for (int i = 1; i <= 1000; ++i) ids += std::to_string(i) + ';';
  const std::string entries = Entries(ids);
  const std::string large =
      DocumentText{.InkList = entries, .MediaList = entries, .Control = Control(">1[ALL>1[ALL]]")}
          .Text();
  folder_.Write("a.qdf", large);
  const std::string head = "First:         a.qdf\nSecond:        b.qdf\nResult:        ";
  const std::string tail = "\nCombinations:  too many to compare\n";
  EXPECT_EQ(With(large), (Outcome{0, head + "equal in meaning" + tail}));
  EXPECT_EQ(With(large + '\n'), (Outcome{2, head + "not known" + tail}));
}

}  // namespace
