// qdf check as a person or an editor runs it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/check/codetables.h"
#include "tests/documents.h"
#include "tests/tool/run.h"

namespace {

using CheckCommand = QdfTest;
using nlohmann::json;

// Places and words, one row for each kind of message that the examples of the page don't show. A
// quotation mark is written as `, and parts of long names as ~ and, with accents, ^.
struct MessageRow {
  const char *mended, *found, *message, *hint;
};

constexpr MessageRow kMessages[] = {
    {"<Ink ID=`1`", "<Media ID=`1`><PrintMode/></Media><Ink ID=`1`",
     "39:6: warning: nobody reads Media in Control_Definition, nor what is under it (1 element) "
     "[element-unknown]",
     "Media is read in Ink"},
    {"<Ink ID=`1` D", "<Ink ID=`1` Defaultmedia=`2` D",
     "39:17: warning: nobody reads the attribute Defaultmedia in Ink [attribute-unknown]",
     "did you mean `DefaultMedia`?"},
    {"<Media ID=`2`", "<Media ID=`-(1,2)`",
     "51:18: warning: this Media vanishes with the 4 elements under it: its ID `-(1,2)` excludes "
     "all media [no-ids]",
     "correct it, or take the element out"},
    {"<Media ID=`2`", "<Media ID=`2, 7,&#56;, 9,10,11,12`",
     "51:18: warning: MediaList has no media with the ids 7, 8, 9, 10, 11 and 1 more [id-unknown]",
     "correct it, or take it out"},
    {"<Media ID=`2`", "<Media ID=`2,ALL`",
     "51:20: warning: `ALL` in the ID `2,ALL` isn't a whole number: only a leading number counts "
     "[idlist-malformed]",
     "`ALL` counts only when it stands alone"},
    {"<Media ID=`1` DefaultPrintMode=`1`", "<Media ID=`1` DefaultPrintMode=`2`",
     "40:39: warning: DefaultPrintMode `2` preselects nothing: print mode 2 (`Best`) isn't below "
     "this element [default-unknown]",
     "name one that stands below, or take the attribute out"},
    {"<Size>9 9 9 9</Size>", "<Size>9 9 nine 9</Size>",
     "31:69: warning: `nine` in Size isn't a plain number: Size is read as 9, 9, 0 and 0 "
     "[number-malformed]",
     "write 4 numbers with commas or blanks between them"},
    {"<Size>595,842</Size>", "<Size>595,0x10</Size>",
     "27:66: warning: `0x10` in Size isn't a plain number: Size is read as 595 and 16 "
     "[number-malformed]",
     "write 2 numbers with commas or blanks between them"},
    {"Name=`Fine`", "Name=`fine`",
     "46:56: warning: `fine` and `Fine` on line 43 are two dithers, although they differ in case "
     "only [name-case]",
     "spell it the same way everywhere"},
    {"<Media ID=`2`", "<Media ID=`Matte`",
     "51:18: warning: this Media vanishes with the 4 elements under it: its ID `Matte` holds no "
     "whole number [no-ids]",
     "correct it, or take the element out"},
    {"<Ink ID=`1`", "<Ink xmlns:a=`u` a:b=`1`/><Ink a:b=`1` ID=`1`",
     "39:36: warning: nobody reads the attribute a:b in Ink [attribute-unknown]", "take it out"},
    {"<Value>600</Value>", "<~~/><Value>600</Value>",
     "19:33: warning: nobody reads ~... in ResolutionDef [element-unknown]", "take it out"},
    {"<Dither ", "<Dither Name=`~~` RipResolution=`600`/><Dither ",
     "46:56: warning: the RIP resolution of `~...` is never found: the name is longer than 64 "
     "bytes [name-cut]",
     "use a shorter name"},
    {"<InternalName>Black<", "<InternalName>a^^^^<",
     "23:56: warning: InternalName is longer than 64 bytes and is cut: it ends in `^` [name-cut]",
     "use a shorter name"},
};

std::string WithQuotes(const std::string& text) {
  const std::string accents = Replaced(std::string(9, '^'), "^", "\xC3\xA9");
  return Replaced(Replaced(Replaced(text, "`", "\""), "~", std::string(60, 'x')), "^", accents);
}

std::string PageWith(const std::string& mended, const std::string& found) {
  return TextWith(ReadCodeTables(), {"", "", "", {WithQuotes(found)}, {WithQuotes(mended)}},
                  Form::kFound);
}

TEST_F(CheckCommand, TellsWhereAndWhatInWords) {
  for (const MessageRow& row : kMessages) {
    folder_.Write("d.qdf", PageWith(row.mended, row.found));
    const Outcome outcome = Run("check d.qdf");
    const std::string expected = std::string(row.message) + "\n  hint: " + row.hint + "\n";
    EXPECT_THAT(outcome.out, testing::HasSubstr("d.qdf:" + WithQuotes(expected)));
  }
}

TEST_F(CheckCommand, TellsPeopleWhatThePageShowsAndProgramsTheSame) {
  folder_.Write("demo.qdf",
                PageWith("<ID>2</ID><DisplayName>Matte", "<ID>1</ID><DisplayName>Matte"));
  std::string shown =
      Replaced(OnTerminal({"check", "demo.qdf"}, {folder_.Path()}), "\r\n", "\n    ");
  shown.erase(shown.rfind("    code 0"));
  EXPECT_THAT(ReadFile(QDF_EXAMPLES "/../docs/checks.md"),
              testing::HasSubstr("\n\n    " + shown + '\n'));
  const json report = Json("check demo.qdf");
  EXPECT_EQ(report["documents"],
            json::parse(R"([{"document": "demo.qdf", "errors": 0, "warnings": 3, "notes": 0}])"));
  ASSERT_EQ(report["findings"].size(), 3U);
  EXPECT_EQ(report["findings"][0], json::parse(R"({
      "document": "demo.qdf", "code": "id-twice", "severity": "warning",
      "line": 12, "column": 21, "length": 1, "path": "/QDF_Info/Definition/MediaList/MediaDef[2]/ID",
      "message": "this medium is dropped: \"Plain\" on line 11 has the id 1 already",
      "hint": "give it an ID of its own"})"));
}

TEST_F(CheckCommand, CutsLongLinesAndKeepsThePlace) {
  const std::string blanks(70, ' ');
  folder_.Write("d.qdf", "<QDF_Info>\n\t<Definition>\n" + blanks + "<W\xC3\xA4rme a='\xE9'>" +
                             std::string(90, 'x') + "</W\xC3\xA4rme>\n</Definition></QDF_Info>");
  const std::string shown = OnTerminal({"check", "d.qdf"}, {folder_.Path()});
  EXPECT_THAT(shown, testing::HasSubstr(" 2 |  <Definition>\r\n   |   ^~~~~~~~~~\r\n"));
  EXPECT_THAT(shown, testing::HasSubstr("d.qdf:3:72: "));
  EXPECT_THAT(shown, testing::HasSubstr(" 3 | ..." + std::string(59, ' ') +
                                        "<W\xC3\xA4rme a='\\xE9'>" + std::string(27, 'x') +
                                        "...\r\n   | " + std::string(63, ' ') + "^~~~~\r\n"));
}

TEST_F(CheckCommand, AnswersWithExitCodes) {
  folder_.Write("OutputDrivers/good.qdf", ReadCodeTables().document);
  folder_.Write("OutputDrivers/Bad.QDF", "<QDF_Info/>");
  folder_.Write("OutputDrivers/good.txt", "");
  folder_.Write("OutputDrivers/sub/other.qdf", "");
  folder_.Write("warns/d.qdf", PageWith("`1,2`", "`1,2` a=``"));
  folder_.Write("empty/readme", "");
  folder_.Write("broken.qdf", "<QDF_Info>\n  <Definition></Wrong>\n");
  folder_.Write("wide.qdf", std::string("\xFF\xFE<\0Q\0/\0>\0", 10));
  const std::string warning =
      "warns/d.qdf:52:29: warning: nobody reads the attribute a in PrintMode "
      "[attribute-unknown]\n  hint: take it out\nwarns/d.qdf: 1 warning\n";
  const std::string both =
      "OutputDrivers/Bad.QDF: no findings\nOutputDrivers/good.qdf: no findings\n";
  const std::pair<std::string, Outcome> rows[] = {
      {"good.qdf", {0, "OutputDrivers/good.qdf: no findings\n"}},
      {"warns", {0, warning}},
      {"warns --werror", {1, warning}},
      {"warns/d.qdf --werror --ignore attribute-unknown", {0, "warns/d.qdf: no findings\n"}},
      {"--ignore definition-missing OutputDrivers", {0, both}},
      {"warns --ignore attribute-unkown",
       Refused("there is no code \"attribute-unkown\"; the nearest are attribute-unknown, "
               "element-unknown, id-unknown",
               2)},
      {"warns --format xml",
       Refused("there is no format \"xml\"; choose from text, json, sarif", 2)},
      {"warns --json --format sarif", Refused("--json contradicts --format sarif", 2)},
      {"empty OutputDrivers --ignore definition-missing good.qdf OutputDrivers/../OutputDrivers",
       {1,
        "empty: error: no *.qdf is in this folder [unreadable]\n"
        "  hint: correct the path, or give the documents themselves\nempty: 1 error\n" +
            both}},
      {"broken.qdf none.qdf",
       {1,
        "broken.qdf:2:15: error: this end tag does not match its start tag [not-well-formed]\n"
        "  hint: correct the XML here; nothing else is examined until then\n"
        "broken.qdf: 1 error\n"
        "OutputDrivers/none.qdf: error: no such file [unreadable]\n"
        "  hint: correct the path, or what it leads to\n"
        "OutputDrivers/none.qdf: 1 error\n"}},
      {"wide.qdf",
       {1,
        "wide.qdf:1:1: error: the file is UTF-16 [not-well-formed]\n"
        "  hint: save it as UTF-8\nwide.qdf: 1 error\n"}},
  };
  for (const auto& [words, outcome] : rows) EXPECT_EQ(Run("check " + words), outcome) << words;
}

TEST_F(CheckCommand, WritesSarif) {
  // A character of two bytes and one of four stand before the finding: one and two code units. In
  // the other document a byte order mark does, which is no column.
  const std::string path = folder_.Write(
      "d \xC3\xA9.qdf", "<QDF_Info><!-- \xC3\xA9\xF0\x9F\x96\xA8 --><Definition/></QDF_Info>");
  const std::string marked = folder_.Write("m.qdf", "\xEF\xBB\xBF<QDF_Info/>");
  const Outcome outcome = RunTool({"check", "--format", "sarif", path, marked, "none.qdf"});
  EXPECT_EQ(outcome.code, 1);
  const json log = json::parse(outcome.out, nullptr, false);
  EXPECT_EQ(log["version"], "2.1.0");
  const json& run = log["runs"][0];
  EXPECT_EQ(run["columnKind"], "utf16CodeUnits");
  EXPECT_EQ(run["tool"]["driver"]["name"], "qdf");
  ASSERT_EQ(run["results"].size(), 7U);
  for (const json& result : run["results"]) {
    const json& rule = run["tool"]["driver"]["rules"][result["ruleIndex"].get<std::size_t>()];
    EXPECT_EQ(result["ruleId"], rule["id"]);
    EXPECT_EQ(result["level"], rule["defaultConfiguration"]["level"]);
  }
  const auto place = [&](std::size_t at) { return run["results"][at]["locations"][0]; };
  EXPECT_EQ(place(0), json::parse(Replaced(R"({"physicalLocation": {
      "artifactLocation": {"uri": "file://FOLDER/d%20%C3%A9.qdf"},
      "region": {"startLine": 1, "startColumn": 24, "endLine": 1, "endColumn": 34}},
      "logicalLocations": [{"fullyQualifiedName": "/QDF_Info/Definition", "kind": "element"}]})",
                                           "FOLDER", folder_.Path())));
  EXPECT_EQ(place(5)["physicalLocation"]["region"],
            json::parse(R"({"startLine": 1, "startColumn": 2, "endLine": 1, "endColumn": 10})"));
  EXPECT_FALSE(place(6)["physicalLocation"].contains("region"));
}

}  // namespace
