// qdf options shows and compares archives of colour options.

#include <gtest/gtest.h>

#include <limits>

#include "qdf/definition/colorarchive.h"
#include "qdf/support/text.h"
#include "tests/tool/run.h"

namespace {

class QdfOptions : public QdfTest {
 protected:
  QdfOptions() {
    WriteColours("a.opt", [](ANewColorOpt&) {});
    WriteColours("b.opt", [](ANewColorOpt& gold) {
      gold.Colorant.ColorDepth = 3;
      gold.Frequency = 60.1F;
      gold.Setting9 = 4'000'000'000U;
      gold.CurveValues[2] = 0.2;
      gold.CurveFlags[3] = 1;
    });
  }

  // Two records, Cyan and Gold.
  void WriteColours(const char* name, void (*change)(ANewColorOpt& gold)) const {
    AArchive archive(AFilePath(folder_.Path(name).c_str()), AArchive::Direction::Writing);
    for (const char* colour : {"Cyan", "Gold"}) {
      ANewColorOpt option;
      SetField(option.Colorant.DisplayName, colour);
      SetField(option.Colorant.InternalName, std::string(colour, 1));
      option.Colorant.IsSpotColor = *colour == 'G' ? 1 : 0;
      if (*colour == 'G') change(option);
      archive << option;
    }
    archive.Close();
  }
};

TEST_F(QdfOptions, ShowsEachRecord) {
  EXPECT_EQ(
      From("       2", Run("options b.opt")),
      "       2  Gold      G             3     1      1  Diamond       60.1     45   4   0   0   "
      "0   0  -1  4000000000  100   0  1 point off\n");
  const nlohmann::json gold = Json("options b.opt")["records"][1];
  EXPECT_EQ(gold["frequency"], 60.1);
  EXPECT_EQ(gold["curveValues"].size(), 21U);
  EXPECT_EQ(gold["curveValues"][2], 0.2);
  EXPECT_EQ(gold["curveValues"][3].dump(), "0.15");
  EXPECT_EQ(gold["curveFlags"][3], 1);
}

TEST_F(QdfOptions, TellsWhichDifferenceMeansRasterisingAgain) {
  EXPECT_EQ(From("Differences", Run("options a.opt b.opt")), R"(Differences (5)
  Record  Colorant  Field          First      Second  Rasterise again
       2  Gold      Depth              1           3  yes
       2  Gold      Frequency         55        60.1  yes
       2  Gold      S9                 1  4000000000
       2  Gold      Curve value 2    0.1         0.2  yes
       2  Gold      Curve flag 3       0           1
)");
  EXPECT_EQ(From("Records", Run("options b.opt b.opt")),
            "Records compared:     2\nRasterise again for:  none\n\nDifferences: none\n");
  // A number that is none differs from itself for the library: that is for no other field to tell.
  WriteColours("c.opt", [](ANewColorOpt& gold) {
    gold.Setting5 = std::numeric_limits<double>::quiet_NaN();
    gold.Colorant.IsPrint = 0;
  });
  const nlohmann::json report = Json("options c.opt c.opt");
  ASSERT_EQ(report["differences"].size(), 1U);
  EXPECT_EQ(report["differences"][0]["field"], "setting5");
  EXPECT_EQ(report["rasteriseAgain"], nlohmann::json::array({2}));
  const nlohmann::json prints = Json("options a.opt c.opt")["differences"][0];
  EXPECT_EQ(prints["field"], "isPrint");
  EXPECT_EQ(prints["rasteriseAgain"], false);
}

TEST_F(QdfOptions, ListsRecordsWithoutACounterpartAndStopsAtDamage) {
  const std::string both = File("a.opt");
  folder_.Write("one.opt", both.substr(0, both.size() / 2));
  folder_.Write("empty.opt", "");
  EXPECT_EQ(From("Records without", Run("options one.opt a.opt")),
            "Records without a counterpart (1)\n"
            "  Record  Colorant  Only in\n"
            "       2  Gold      the second\n");
  EXPECT_EQ(Run("options empty.opt").out, "File:  empty.opt\n\nColour options: none\n");
  folder_.Write("cut.opt", both.substr(0, both.size() - 1));
  folder_.Write("text.opt", "This is no archive");
  folder_.Write("rest.opt", both + std::string(40, '\0'));
  const std::string damage = ": damaged, or no archive of colour options; whole records: ";
  ExpectRefusals("options", {{"cut.opt", "cut.opt" + damage + '1'},
                             {"a.opt text.opt", "text.opt" + damage + '0'},
                             {"rest.opt", "rest.opt" + damage + '2'},
                             {"none.opt", "none.opt: no such file"}});
}

}  // namespace
