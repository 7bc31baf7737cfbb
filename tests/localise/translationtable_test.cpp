// The lines of a translation table: which count, and what they hold.

#include "qdf/localise/translationtable.h"

#include <gtest/gtest.h>

#include "tests/documents.h"

namespace {

TEST(TranslationTable, DecodesRunsOfHexadecimalDigits) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},
      {"plain > text", "plain > text"},
      {"<41 42>", "A B"},
      {"< 41  42 >", " A  B "},
      {"x<41>y<42>z", "xAyBz"},
      {"<>x", "x"},
      {"<c3A9>", "\xC3\xA9"},
      {"<4G>x", "@x"},     // no digit counts as 0
      {"<<1>x", "\x01x"},  // also a "<"
      {"<414>xy", "A@"},   // nor does a ">" where a digit is due, and the run goes on
      {"<4 1>", "@\x10"},  // nor a blank
      {"x<", "x"},
      {"<414", "A"},
      {"<4", ""},
      {"<41 ", "A "},
      {"A<004142>B", "A"},
  };
  for (const auto& [coded, decoded] : rows) {
    AString text(coded);
    DecodeHexRuns(text);
    EXPECT_EQ(text, decoded) << coded;
  }
}

// "key|translation", or "-" for a line that doesn't count.
std::string Read(const char* line) {
  TranslationPair pair{"former", "pair"};
  if (ReadTableLine(line, pair) == nullptr) {
    return (pair.Key + "|" + pair.Translation).operator const char*();
  }
  EXPECT_EQ(pair.Key, "former");
  return "-";
}

TEST(TranslationTable, ReadsALine) {
  const std::pair<const char*, const char*> rows[] = {
      {"*Plain Paper=/Papier ordinaire:\n", "Plain Paper|Papier ordinaire"},
      {" Plain Paper\t= Papier ordinaire \r\n", "Plain Paper|Papier ordinaire"},
      {"ab=c=d", "ab|c=d"},
      {"**=//::", "*|/:"},
      {"* a=/ b :", " a| b "},  // trimmed before the marks go, not behind
      {"*a=/b", "a|b"},
      {"ab=b:", "ab|b"},
      {"ab=/<4142>:", "ab|AB"},
      {"ab=<41:>", "ab|A"},
      {"", "-"},
  };
  for (const auto& [line, pair] : rows) EXPECT_EQ(Read(line), pair) << line;
  for (const std::string& line :
       Split("\n|no separator|=value| =value|a=value|*=value|ab=|ab=c|ab=/|ab= / |ab=/:|ab=<4|"
             "ab=<0041>")) {
    EXPECT_EQ(Read(line.c_str()), "-") << line;
  }
}

}  // namespace
