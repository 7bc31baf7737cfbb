// Colour modes, their colorants, and how colorants are compared.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

#include "qdf/definition/anewcoloropt.h"
#include "qdf/definition/readers.h"
#include "qdf/support/ownership.h"
#include "qdf/support/text.h"
#include "tests/documents.h"
#include "tests/trees.h"

namespace {

class ColorModeList : public OwnedItems<ColorModeInfo> {
 public:
  explicit ColorModeList(const std::string& entries) {
    ReadColorModeList(
        TreeOf("<a><Definition><ColorModeList>" + entries + "</ColorModeList></Definition></a>")
            .get(),
        *this);
  }
};

TEST(ColorModes, WithoutAColorantAreDropped) {
  const ColorModeList list(
      "<m><ID>1</ID></m><m><ID>2</ID><ColorantList/></m>"
      "<m><ID>3</ID><ColorantList> <!-- --> </ColorantList><ColorantList><c/></ColorantList></m>"
      "<m><ID>4</ID><ColorantList>x<c/><d/></ColorantList></m>"
      "<m><ID>4</ID><ColorantList><c/></ColorantList></m>");
  const auto modes = Records<ColorModeInfo>(list);
  EXPECT_EQ(IDs(modes), "4");
  EXPECT_EQ(modes.at(0).ColorantCount, 2);
}

std::string Described(const ANewColorOpt& option) {
  AString numbers;
  numbers.Format(" %g %g %g %d %d %d ", static_cast<double>(option.Frequency),
                 static_cast<double>(option.Angle), option.Setting5, option.Colorant.IsSpotColor,
                 option.Colorant.IsPrint, option.Colorant.ColorDepth);
  return Str(option.Shape) + static_cast<const char*>(numbers) + Str(option.Colorant.InternalName) +
         "/" + Str(option.Colorant.DisplayName);
}

TEST(ColorModes, FillWhatAColorantSays) {
  const std::string longName(70, 'n');
  const std::string longShape(130, 's');
  const struct {
    std::string colorant, described;
  } rows[] = {
      {"<c/>", "Diamond 55 45 0 0 1 1 /"},
      {"<c shape='Round'><Angle>1</Angle></c>", "Diamond 55 45 0 0 1 1 /"},
      {"<c Shape='' Angle='' Frequency='' IsPrint='' IsSpotColor=''><ColorDepth/></c>",
       "Diamond 55 45 0 0 1 0 /"},
      {"<c Shape='Round' Angle='30.1' Frequency='1e39' IsPrint='0' IsSpotColor=' 2x'><ColorDepth>8"
       "</ColorDepth><DisplayName>Cyan</DisplayName><InternalName>C</InternalName></c>",
       "Round 3.40282e+38 30.1 30.1 2 0 8 C/Cyan"},
      {"<c Shape='" + longShape + "' Angle='x'><DisplayName>" + longName + "</DisplayName></c>",
       longShape.substr(0, 128) + " 55 0 0 0 1 1 /" + longName.substr(0, 64)}};
  std::string all;
  for (const auto& row : rows) all += row.colorant;
  const auto modes =
      Records<ColorModeInfo>(ColorModeList("<m><ColorantList>" + all + "</ColorantList></m>"));
  ASSERT_EQ(modes.size(), 1U);
  ASSERT_EQ(modes[0].ColorantCount, 5);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Described(modes[0].Colorants[i]), rows[i].described);
  EXPECT_EQ(modes[0].Colorants[0] == ANewColorOpt(), 1);
  EXPECT_EQ(modes[0].Colorants[3].Setting5, 30.1) << "with all its digits";
}

TEST(ColorModes, AreCopiedWithTheirColorants) {
  auto source = std::make_unique<ColorModeInfo>();
  source->ID = 5;
  SetField(source->DisplayName, std::string(256, 'd'));
  source->ColorantCount = 2;
  source->Colorants = new ANewColorOpt[2];
  source->Colorants[1].Setting4 = 44;
  const ColorModeInfo copy(*source);
  ColorModeInfo assigned(copy);
  assigned = *source;
  const ColorModeInfo& itself = assigned;
  assigned = itself;
  source->Colorants[1].CurveValues[3] = 9.0;
  source.reset();
  EXPECT_EQ(copy.Colorants[1].Setting4 + assigned.Colorants[1].Setting4, 88);
  EXPECT_EQ(copy.Colorants[1] == assigned.Colorants[1], 1);
  EXPECT_EQ(Str(assigned.DisplayName), std::string(256, 'd'));

  const ColorModeInfo empty;
  assigned = empty;
  EXPECT_EQ(assigned.Colorants, nullptr);
  EXPECT_EQ(assigned.ColorantCount + assigned.ID, 0);
  EXPECT_EQ(ColorModeInfo(empty).Colorants, nullptr);
}

// Each change, and whether it asks for another rasterising and makes the records differ.
TEST(ColorOptions, DifferInTwoWays) {
  using Option = ANewColorOpt;
  const struct {
    const char* what;
    void (*change)(Option&);
    int again, differs;
  } rows[] = {
      {"nothing", [](Option&) {}, 0, 0},
      {"Shape", [](Option& o) { o.Shape[0] = 'd'; }, 1, 1},
      {"Shape behind its end", [](Option& o) { o.Shape[100] = 'x'; }, 0, 0},
      {"Angle", [](Option& o) { o.Angle = std::nextafter(o.Angle, 99.0F); }, 1, 1},
      {"Frequency", [](Option& o) { o.Frequency = std::nextafter(o.Frequency, 0.0F); }, 1, 1},
      {"Setting4", [](Option& o) { ++o.Setting4; }, 1, 1},
      {"Setting5", [](Option& o) { o.Setting5 = 1e-300; }, 1, 1},
      {"Setting6", [](Option& o) { ++o.Setting6; }, 1, 1},
      {"Setting0", [](Option& o) { ++o.Setting0; }, 1, 1},
      {"Setting7", [](Option& o) { ++o.Setting7; }, 1, 1},
      {"Setting8", [](Option& o) { ++o.Setting8; }, 1, 1},
      {"Setting9", [](Option& o) { ++o.Setting9; }, 0, 1},
      {"Setting10", [](Option& o) { ++o.Setting10; }, 1, 1},
      {"CurveFlags", [](Option& o) { o.CurveFlags[7] = 1; }, 0, 0},
      {"a curve point, inside", [](Option& o) { o.CurveValues[20] += 0.00000005; }, 0, 0},
      {"a curve point, outside", [](Option& o) { o.CurveValues[20] -= 0.0000002; }, 1, 1},
      {"a curve point, just at it", [](Option& o) { o.CurveValues[0] = 0.0000001; }, 1, 0},
      {"a curve point, just below it", [](Option& o) { o.CurveValues[0] = -0.0000001; }, 1, 0},
      {"no number", [](Option& o) { o.CurveValues[5] = std::nan(""); }, 1, 1},
      {"InternalName", [](Option& o) { o.Colorant.InternalName[63] = 'x'; }, 0, 0},
      {"its start", [](Option& o) { o.Colorant.InternalName[0] = 'x'; }, 1, 1},
      {"the end of a full field", [](Option& o) { o.Colorant.DisplayName[63] = 'x'; }, 1, 1},
      {"ColorDepth", [](Option& o) { ++o.Colorant.ColorDepth; }, 1, 1},
      {"IsSpotColor", [](Option& o) { ++o.Colorant.IsSpotColor; }, 1, 1},
      {"IsPrint", [](Option& o) { ++o.Colorant.IsPrint; }, 0, 1},
      {"ColorantSetting5", [](Option& o) { ++o.Colorant.ColorantSetting5; }, 1, 1}};
  Option former;
  SetField(former.Colorant.DisplayName, std::string(64, 'd'));
  for (const auto& row : rows) {
    Option option;
    option = former;
    row.change(option);
    EXPECT_EQ(option.ColorOptionRequireReRip(former), row.again) << row.what;
    EXPECT_EQ(former.ColorOptionRequireReRip(option), row.again) << row.what;
    EXPECT_EQ(option != former, row.differs) << row.what;
    EXPECT_EQ(option == former, 1 - row.differs) << row.what;
    Option copy;
    EXPECT_EQ(&(copy = option), &copy);
    if (row.what != std::string("no number")) {
      EXPECT_EQ(copy != option, 0) << "assigned: " << row.what;
      EXPECT_EQ(copy.ColorOptionRequireReRip(option), 0) << "assigned: " << row.what;
    }
    EXPECT_EQ(std::memcmp(copy.CurveFlags, option.CurveFlags, sizeof copy.CurveFlags), 0);
    EXPECT_EQ(copy.Setting9, option.Setting9);
  }
  EXPECT_EQ(former.CurveValues[0] + former.CurveValues[7], 7 * 0.05);
  EXPECT_EQ(former.CurveFlags[0] + former.CurveFlags[20] * 10 + former.CurveFlags[1] * 100, 11);
}

}  // namespace
