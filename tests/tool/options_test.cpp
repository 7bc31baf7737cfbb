#include <gtest/gtest.h>

#include <limits>

#include "tests/files.h"
#include "tests/tool/colours.h"
#include "tests/tool/run.h"

namespace {

class QdfOptions : public testing::Test {
 protected:
  QdfOptions() {
    WriteColours(folder_.Path("a.opt"));
    WriteColours(folder_.Path("b.opt"), [](int number, ANewColorOpt& option) {
      if (number == 1) return;
      option.Frequency = 60.1F;
      option.Setting9 = 4'000'000'000U;
      option.CurveValues[2] = 0.2;
      option.CurveFlags[3] = 1;
    });
  }

  Outcome Run(const std::string& words) const {
    return RunTool(SplitWords("options " + words), {folder_.Path()});
  }

  TempFolder folder_;
};

TEST_F(QdfOptions, ShowsEachRecord) {
  EXPECT_EQ(Run("b.opt"), (Outcome{0, R"(File:  b.opt

Colour options (2)
  Record  Colorant  Internal  Depth  Spot  Print  Shape    Frequency  Angle  S0  S4  S5  S6  S7  S8          S9  S10  C5  Curve
       1  Cyan      C             1     0      1  Diamond         55     45   4   0   0   0   0  -1           1  100   0  straight
       2  Gold      G             1     1      1  Diamond       60.1     45   4   0   0   0   0  -1  4000000000  100   0  1 point off
)"}));
  const nlohmann::json report = RunJson({"options", "b.opt"}, {folder_.Path()});
  const nlohmann::json& gold = report["records"][1];
  EXPECT_EQ(gold["frequency"], 60.1);
  EXPECT_EQ(gold["curveValues"].size(), 21U);
  EXPECT_EQ(gold["curveValues"][2], 0.2);
  EXPECT_EQ(gold["curveValues"][3].dump(), "0.15");
  EXPECT_EQ(gold["curveFlags"][3], 1);
}

TEST_F(QdfOptions, TellsWhichDifferenceMeansRasterisingAgain) {
  EXPECT_EQ(Run("a.opt b.opt"), (Outcome{0, R"(First:                a.opt
Second:               b.opt
Records compared:     2
Rasterise again for:  2

Differences (4)
  Record  Colorant  Field          First      Second  Rasterise again
       2  Gold      Frequency         55        60.1  yes
       2  Gold      S9                 1  4000000000
       2  Gold      Curve value 2    0.1         0.2  yes
       2  Gold      Curve flag 3       0           1
)"}));
  EXPECT_EQ(Run("b.opt b.opt").out,
            "First:                b.opt\nSecond:               b.opt\nRecords compared:     2\n"
            "Rasterise again for:  none\n\nDifferences: none\n");
}

TEST_F(QdfOptions, LooksAtEachFieldByItself) {
  // A number that is none differs from itself for the library: that is for no other field to tell.
  WriteColours(folder_.Path("c.opt"), [](int, ANewColorOpt& option) {
    option.Setting5 = std::numeric_limits<double>::quiet_NaN();
    option.Colorant.IsPrint = 0;
  });
  const nlohmann::json report = RunJson({"options", "c.opt", "c.opt"}, {folder_.Path()});
  ASSERT_EQ(report["differences"].size(), 2U);
  EXPECT_EQ(report["differences"][0]["field"], "setting5");
  EXPECT_EQ(report["rasteriseAgain"], nlohmann::json({1, 2}));
  const nlohmann::json prints = RunJson({"options", "a.opt", "c.opt"}, {folder_.Path()});
  EXPECT_EQ(prints["differences"][0]["field"], "isPrint");
  EXPECT_EQ(prints["differences"][0]["rasteriseAgain"], false);
}

TEST_F(QdfOptions, ListsRecordsWithoutACounterpart) {
  const std::string both = ReadFile(folder_.Path("a.opt"));
  folder_.Write("one.opt", both.substr(0, both.size() / 2));
  folder_.Write("empty.opt", "");
  EXPECT_NE(Run("one.opt a.opt")
                .out.find("\nRecords without a counterpart (1)\n"
                          "  Record  Colorant  Only in\n"
                          "       2  Gold      the second\n"),
            std::string::npos);
  EXPECT_EQ(Run("empty.opt").out, "File:  empty.opt\n\nColour options: none\n");
}

TEST_F(QdfOptions, StopsAtDamage) {
  const std::string both = ReadFile(folder_.Path("a.opt"));
  folder_.Write("cut.opt", both.substr(0, both.size() - 1));
  folder_.Write("text.opt", "This is no archive");
  folder_.Write("zeros.opt", std::string(40, '\0'));
  folder_.Write("rest.opt", both + std::string(40, '\0'));
  const struct {
    const char* words;
    const char* line;
  } refusals[] = {
      {"cut.opt", "cut.opt: damaged, or no archive of colour options; whole records: 1"},
      {"a.opt text.opt", "text.opt: damaged, or no archive of colour options; whole records: 0"},
      {"zeros.opt", "zeros.opt: damaged, or no archive of colour options; whole records: 0"},
      {"rest.opt", "rest.opt: damaged, or no archive of colour options; whole records: 2"},
      {"none.opt", "none.opt: no such file"},
      {"./", "./: it is a folder"},
  };
  for (const auto& refusal : refusals) {
    EXPECT_EQ(Run(refusal.words), (Outcome{1, "", std::string("qdf: ") + refusal.line + '\n'}));
  }
}

}  // namespace
