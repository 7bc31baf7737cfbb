// Where the output goes, and what it does to a terminal.

#include <gtest/gtest.h>

#include "tests/tool/run.h"

namespace {

const Words kInks = {"show", "plot36.qdf", "--list", "inks"};

TEST(Output, IsBoldOnATerminalOnly) {
  const std::string plain =
      "Inks (1)\r\n  ID  Display name  Internal name\r\n   1  Standard      Standard\r\ncode 0";
  EXPECT_EQ(OnTerminal(kInks, {}),
            "\x1b[1mInks (1)\x1b[0m\r\n  \x1b[1mID  Display name  Internal name\x1b[0m\r\n"
            "   1  Standard      Standard\r\ncode 0");
  EXPECT_EQ(OnTerminal(kInks, {.environment = {"NO_COLOR=1", "TERM=xterm"}}), plain);
  EXPECT_EQ(OnTerminal(kInks, {.environment = {"NO_COLOR=", "TERM=dumb"}}), plain);
  EXPECT_EQ(RunTool(kInks).out.find('\x1b'), std::string::npos);
}

TEST(Output, TellsAFullDiskAndEndsQuietlyWhenNobodyReads) {
  const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
  close(ends[0]);
  for (const Words& words : {kInks, {"tree", "plot36.qdf", "--json"}, {"--help"}}) {
    EXPECT_EQ(RunTool(words, {.out = full}),
              (Outcome{1, "", "qdf: standard output: No space left on device\n"}));
    EXPECT_EQ(RunTool(words, {.out = ends[1]}), (Outcome{0}));
  }
  EXPECT_EQ(RunTool({"--help"}, {.mostBytes = 100}).err, "qdf: standard output: File too large\n");
  close(full);
  close(ends[1]);
}

// Names that would clear a screen, break a line, turn the direction of writing, are no UTF-8, or
// are wider or narrower than their bytes.
constexpr const char* kOddInks =
    "<I><ID>1</ID><DisplayName>a&#27;[2J&#10;b</DisplayName><InternalName>x</InternalName></I>"
    "<I><ID>2</ID><DisplayName>\xe6\x97\xa5\xe6\x9c\xac</DisplayName><InternalName>y</InternalName>"
    "</I><I><ID>3</ID><DisplayName>cafe\xcc\x81</DisplayName><InternalName>\xff\xc2\x9b\xe2\x80\xae"
    "</InternalName></I>";

using OddOutput = QdfTest;

TEST_F(OddOutput, MakesNamesHarmlessAndKeepsColumnsAligned) {
  folder_.Write("odd.qdf", DocumentText{.InkList = kOddInks}.Text());
  EXPECT_EQ(Run("show odd.qdf --list inks").out,
            "Inks (3)\n"
            "  ID  Display name   Internal name\n"
            "   1  a\\x1B[2J\\x0Ab  x\n"
            "   2  \xe6\x97\xa5\xe6\x9c\xac           y\n"
            "   3  cafe\xcc\x81           \\xFF\\xC2\\x9B\\xE2\\x80\\xAE\n");
  const Outcome unknown = Run("narrow odd.qdf --ink \x1b]0;\a");
  EXPECT_EQ(unknown.err.find_first_of("\x1b\a"), std::string::npos) << unknown;
  const nlohmann::json inks = Json("show odd.qdf --list inks");
  EXPECT_EQ(inks["inks"][0]["displayName"], "a\x1b[2J\nb");
  EXPECT_EQ(inks["inks"][2]["displayName"], "cafe\xcc\x81");
  EXPECT_EQ(inks["inks"][2]["internalName"], "\xef\xbf\xbd\xc2\x9b\xe2\x80\xae");
  const std::string json = Run("show odd.qdf --json").out;
  EXPECT_TRUE(std::all_of(json.begin(), json.end(),
                          [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
}

}  // namespace
