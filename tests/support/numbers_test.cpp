// Numbers out of texts. What the C library reads in the "C" locale is right by definition, as long
// as a type can hold it.

#include "qdf/support/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "qdf/definition/resolutionvalue.h"
#include "tests/documents.h"

namespace {

constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// By bits, but any NaN is as good as another.
bool Same(double a, double b) {
  return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}

const std::vector<std::string> kTexts = Split(
    "| |0|-0|7|720|600 dpi|600,5|0.5|.5|5.|-.5e1x|1e|1e+|1e5|1E-3|0x10|0x|0x1p3|0X.8|inf|"
    "-Infinity|nan|NAN(1)|+3|+-3|--3|- 7|-12.9|007|\t\n\v\f\r 8|\xA0 "
    "8|abc|12abc|e5|.|-|1_000|1\n2|"
    "1e999|-1e999|1e-999|123456789012345|1234567890123456|9007199254740993|123456789012345.5|"
    "00000000000000000000012|4.9e-324|1.7976931348623157e308|2147483647|2147483648|-2147483648|"
    "-2147483649|99999999999999999999|-99999999999999999999");

TEST(Numbers, AreWhatTheCLibraryReads) {
  for (const std::string& text : kTexts) {
    EXPECT_TRUE(Same(ReadDouble(text), std::strtod(text.c_str(), nullptr))) << '"' << text << '"';
    const long whole = std::strtol(text.c_str(), nullptr, 10);
    EXPECT_EQ(ReadInt(text.c_str()), std::clamp<long>(whole, kMin, kMax)) << '"' << text << '"';
  }
  const std::string digits(100'000, '7');
  EXPECT_EQ(ReadDouble(digits), kInfinity);
  EXPECT_EQ(ReadInt(digits.c_str()), kMax);
}

// Against one call of sscanf for all four numbers.
TEST(Numbers, AreScannedBetweenBlanksAndCommas) {
  for (const std::string& text : Split(
           "|1,2,3,4|1 2 3 4| 1 ,\t2,,3\n4 5|8.5,11|1|1,x,3,4|1e,2,3,4|1e2e3 4|1.5.5 6|0x10,0x1p3|"
           "inf nan -inf 1|1-2-3-4|1e+ 2|.,1|-,1|1;2|nan(1) 2 3|infin 1|1e999,-1e999")) {
    std::string blanks(text);
    for (char& c : blanks) c = c == ',' ? ' ' : c;
    double expected[4] = {90, 91, 92, 93};
    double got[4] = {90, 91, 92, 93};
    const int count = std::sscanf(blanks.c_str(), "%lf %lf %lf %lf", &expected[0], &expected[1],
                                  &expected[2], &expected[3]);
    ScanDoubles(text.c_str(), std::array{&got[0], &got[1], &got[2], &got[3]});
    EXPECT_TRUE(std::equal(got, got + 4, expected, Same)) << text << ": " << count;
  }
}

TEST(Numbers, OfAResolutionStandAroundAnX) {
  const struct {
    const char* text;
    double x, y;
  } rows[] = {{"", 0, 0},
              {"600 dpi", 600, 600},
              {"720x360.5", 720, 360.5},
              {"720X", 720, 0},
              {"x360", 0, 360},
              {" 1 x 2 x 3", 1, 2},
              {"0x10", 0, 10},
              {"infxnan", kInfinity, kNaN}};
  for (const auto& row : rows) {
    double x = 9;
    double y = 9;
    ReadResolutionValue(row.text, x, y);
    EXPECT_TRUE(Same(x, row.x) && Same(y, row.y)) << row.text << ": " << x << ", " << y;
  }
}

TEST(Numbers, AreCutWithoutLeavingTheirType) {
  const std::pair<double, int> rows[] = {
      {0.9, 0},      {-0.9, 0},          {-1.5, -1}, {2147483647.5, kMax}, {-2147483648.5, kMin},
      {1e300, kMax}, {-kInfinity, kMin}, {kNaN, 0}};
  for (const auto& [value, whole] : rows) EXPECT_EQ(TruncateToInt(value), whole) << value;
  constexpr float kLargest = std::numeric_limits<float>::max();
  EXPECT_EQ(NarrowToFloat(0.1), 0.1F);
  EXPECT_EQ(NarrowToFloat(1e300), kLargest);
  EXPECT_EQ(NarrowToFloat(-1e39), -kLargest);
  EXPECT_TRUE(std::isinf(NarrowToFloat(kInfinity)) && std::isnan(NarrowToFloat(kNaN)));
}

// The host has chosen one with a decimal comma.
TEST(Numbers, DontFollowTheLocaleOfTheHost) {
  std::vector<double> expected;
  for (const std::string& text : kTexts) expected.push_back(ReadDouble(text));
  if (setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
    GTEST_SKIP() << "no locale de_DE.UTF-8; scripts/setup makes it";
  }
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_TRUE(Same(ReadDouble(kTexts[i]), expected[i])) << kTexts[i];
  }
  double x = 0;
  double y = 0;
  ScanDoubles("8.5,11.25", std::array{&x, &y});
  EXPECT_EQ(x + y, 19.75);
  ReadResolutionValue("0.5x1.5", x, y);
  EXPECT_EQ(x + y, 2.0);
  AString text;
  text.Format("%lf %f", 0.5, 1.5);
  EXPECT_EQ(text, "0.500000 1.500000");
  char own[8];
  std::snprintf(own, sizeof own, "%.1f", 0.5);
  EXPECT_STREQ(own, "0,5") << "the host's own locale is left as it was";
  setlocale(LC_ALL, "C");
}

}  // namespace
