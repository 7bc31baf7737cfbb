// Each code by the example that docs/checks.md has for it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/check/codetables.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tool/check/examine.h"

namespace {

// The codes found, "unreadable" for a text that isn't there.
std::vector<std::string> CodesIn(const std::string& text, const check::Choice& choice) {
  const TempFolder folder;
  folder.Write("demo.txt", "");
  folder.Write("demo_custom.txt", "");
  const std::string path =
      text.empty() ? folder.Path("nothing.qdf") : folder.Write("demo.qdf", text);
  std::vector<std::string> codes;
  for (const check::Finding& finding : check::Examine(path, choice).findings) {
    codes.emplace_back(finding.rule->name);
    EXPECT_NE(finding.message, "") << codes.back();
    EXPECT_NE(finding.hint, "") << codes.back();
  }
  return codes;
}

// A hundred elements of a level under each of a hundred, all with the same many ids.
std::string OverlappingText() {
  std::string entries = "1";
  for (int id = 2; id <= 250; ++id) entries += ";" + std::to_string(id);
  const std::string media = Join(std::vector<std::string>(100, "ALL"), ";");
  const std::string inks = Join(std::vector<std::string>(100, "1[" + media + "]"), ";");
  return DocumentText{.MediaList = Entries(entries), .Control = Control(">1[" + inks + "]")}.Text();
}

TEST(Codes, PageAndProgramTellTheSame) {
  const CodeTables tables = ReadCodeTables();
  ASSERT_EQ(tables.rows.size(), check::Rules().size());
  for (std::size_t i = 0; i < tables.rows.size(); ++i) {
    const check::Rule& rule = check::Rules()[i];
    EXPECT_EQ(tables.rows[i].code, rule.name);
    EXPECT_EQ(tables.rows[i].severity, check::NameOf(rule.severity)) << rule.name;
    EXPECT_EQ(tables.rows[i].meaning, rule.meaning) << rule.name;
  }
}

// What may come along with the finding of an example.
constexpr const char* kConsequences[] = {"element-unknown", "no-colorants", "no-ids",
                                         "entry-unused",    "dead-end",     "option-hidden",
                                         "dithers-hidden",  "entry-name",   "name-missing"};

TEST(Codes, ExamplesGiveThemAndMendedOnesDoNot) {
  const CodeTables tables = ReadCodeTables();
  for (const CodeRow& row : tables.rows) {
    SCOPED_TRACE(row.code);
    const check::Choice choice{row.code.starts_with("write-"), true};
    std::string text;
    if (row.code == "reach-unfinished") {
      text = OverlappingText();
    } else if (row.code == "not-utf8") {
      text = Replaced(tables.document, "Matte", "Matt\xE9");
    } else if (row.code != "unreadable") {
      ASSERT_FALSE(row.found.empty());
      text = TextWith(tables, row, Form::kFound);
    }
    const std::vector<std::string> found = CodesIn(text, choice);
    const std::vector<std::string> mended = CodesIn(TextWith(tables, row, Form::kMended), choice);
    EXPECT_THAT(found, testing::Contains(row.code));
    EXPECT_THAT(mended, testing::Not(testing::Contains(row.code)));
    if (choice.writeLoss) continue;  // a write loses more of this document
    EXPECT_THAT(mended, testing::IsEmpty());
    if (row.found.empty()) continue;
    EXPECT_THAT(found, testing::Each(testing::AnyOf(row.code, testing::AnyOfArray(kConsequences))));
  }
}

TEST(Codes, LookAtWhatTheReaderHolds) {
  const std::string text = ReadCodeTables().document;
  std::string odd = Replaced(text, "595,842", "nan,inf");
  odd = Replaced(Replaced(odd, "\"600\"", "\"600x0\""), ">600<", ">600x1.5<");
  const std::vector<std::string> codes = CodesIn(odd, {true, false});
  EXPECT_THAT(codes, testing::IsSupersetOf({"rip-unusable", "write-fraction"}));
  EXPECT_THAT(codes,
              testing::Not(testing::Contains(testing::AnyOf("write-decimals", "write-rip"))));
  // The same dither has a RIP resolution elsewhere.
  EXPECT_THAT(CodesIn(Replaced(text, "<Dither N", "<Dither Name=\"Fine\"/><Dither N"), {}),
              testing::ElementsAre("dither-twice"));
}

TEST(Codes, BytesThatAreNoUTF8) {
  const std::string document = ReadCodeTables().document;
  for (const std::string& bytes :
       Split("\xC2\x80|\xDF\xBF|\xE0\xA0\x80|\xED\x9F\xBF|\xEF\xBF\xBD|\xF0\x90\x80\x80|"
             "\xF4\x8F\xBF\xBF")) {
    EXPECT_THAT(CodesIn(Replaced(document, "Matte", bytes), {}), testing::IsEmpty()) << bytes;
  }
  for (const std::string& bytes :
       Split("\x80|\xC1\xBF|\xE0\x9F\xBF|\xED\xA0\x80|\xF0\x8F\xBF\xBF|\xF4\x90\x80\x80|"
             "\xF8\x88\x80\x80|\xE2\x82")) {
    EXPECT_THAT(CodesIn(Replaced(document, "Matte", bytes), {}), testing::ElementsAre("not-utf8"))
        << bytes;
  }
}

}  // namespace
