// Colour options in archives: their stored form, older and newer records, and records cut short.

#include "qdf/definition/colorarchive.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "qdf/support/text.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

using Direction = AArchive::Direction;

// Every field: texts, numbers, the values of the curve, its flags.
std::vector<std::string> Fields(const ANewColorOpt& option) {
  const ColorantInfo& colorant = option.Colorant;
  std::vector<std::string> fields = {Str(option.Shape), Str(colorant.InternalName),
                                     Str(colorant.DisplayName)};
  const auto put = [&](auto... numbers) {
    (fields.emplace_back(AString().Format("%.12g", static_cast<double>(numbers))), ...);
  };
  put(option.Frequency, option.Angle, option.Setting5, option.Setting0, option.Setting4,
      option.Setting6, option.Setting7, option.Setting8, colorant.ColorDepth, colorant.IsSpotColor,
      colorant.IsPrint, option.Setting9, option.Setting10, colorant.ColorantSetting5);
  for (const double value : option.CurveValues) put(value);
  for (const int flag : option.CurveFlags) put(flag);
  return fields;
}

// A record as hosts have stored it, in which no two numbers are alike. These bytes never change,
// and stay readable for ever.
constexpr std::string_view kStoredRecord =
    "B7010000"
    " 00 04000000 04000000"
    " 01 08000000 040000004C696E65"
    " 02 04000000 00009742"
    " 03 04000000 000070C1"
    " 04 04000000 D4FFFFFF"
    " 05 08000000 0000000000802E40"
    " 06 04000000 42000000"
    " 07 04000000 4D000000"
    " 08 04000000 A8FFFFFF"
    " 09 04000000 63000000"
    " 0A 04000000 00286BEE"
    " 0B 46000000 42000000"
    " 00 08000000 040000004379616E"
    " 01 0C000000 080000004379616E20696E6B"
    " 02 04000000 08000000"
    " 03 04000000 01000000"
    " 04 04000000 00000000"
    " 05 04000000 EFBEADDE"
    " 0C FC000000"
    " 0000000000000000 FFFFFFFF 000000000000A03F 02000000 000000000000B03F 05000000"
    " 000000000000B83F 08000000 000000000000C03F 0B000000 000000000000C43F 0E000000"
    " 000000000000C83F 11000000 000000000000CC3F 14000000 000000000000D03F 17000000"
    " 000000000000D23F 1A000000 000000000000D43F 1D000000 000000000000D63F 20000000"
    " 000000000000D83F 23000000 000000000000DA3F 26000000 000000000000DC3F 29000000"
    " 000000000000DE3F 2C000000 000000000000E03F 2F000000 000000000000E13F 32000000"
    " 000000000000E23F 35000000 000000000000E33F 38000000 000000000000E43F 3B000000";

std::string StoredRecord() {
  std::string digits(kStoredRecord);
  digits.erase(std::remove(digits.begin(), digits.end(), ' '), digits.end());
  std::string bytes;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
  }
  return bytes;
}

class ColorArchive : public testing::Test {
 protected:
  AArchive Open(Direction direction) { return AArchive(AFilePath(Path().c_str()), direction); }
  AArchive Reading(const std::string& bytes) {
    std::remove(Path().c_str());  // some disks are slow to overwrite
    WriteFile(Path(), bytes);
    return Open(Direction::Reading);
  }
  std::string Path() const { return folder_.Path("options"); }

 private:
  TempFolder folder_;
};

TEST_F(ColorArchive, ReadsAndWritesTheStoredForm) {
  ANewColorOpt read;
  AArchive archive = Reading(StoredRecord());
  archive >> read;
  EXPECT_EQ(Join(Fields(read), " "),
            "Line Cyan Cyan ink 75.5 -15 15.25 4 -44 66 77 -88 8 1 0 99 4000000000 3735928559"
            " 0 0.03125 0.0625 0.09375 0.125 0.15625 0.1875 0.21875 0.25 0.28125 0.3125 0.34375"
            " 0.375 0.40625 0.4375 0.46875 0.5 0.53125 0.5625 0.59375 0.625"
            " -1 2 5 8 11 14 17 20 23 26 29 32 35 38 41 44 47 50 53 56 59");
  EXPECT_NE(archive.AtEnd(), 0);
  EXPECT_EQ(archive.IsDamaged(), 0);
  AArchive copy = Open(Direction::Writing);
  copy << read;
  ASSERT_EQ(copy.Close(), 1);
  EXPECT_EQ(ReadFile(Path()), StoredRecord());
}

TEST_F(ColorArchive, ReadsOlderAndNewerRecords) {
  AArchive writing = Open(Direction::Writing);
  writing.TagStart().Tag(1) << AString(std::string(200, 's').c_str());
  writing.Tag(4) << 44 << AString("what tag 4 has learnt since");
  writing.Tag(11).TagStart().Tag(1) << AString(std::string(65, 'd').c_str());
  writing.Tag(6) << AString("unknown");
  writing.TagEnd().Tag(13).TagStart().TagEnd().TagEnd() << 99;
  ASSERT_EQ(writing.Close(), 1);

  AArchive archive = Open(Direction::Reading);
  ANewColorOpt read;
  int next = 0;
  archive >> read >> next;
  EXPECT_EQ(next, 99);
  EXPECT_EQ(archive.IsDamaged(), 0);
  std::vector<std::string> expected = Fields(ANewColorOpt());  // whose curve stays
  const auto curve = expected.end() - 2L * ANewColorOpt::kCurvePoints;
  std::fill(expected.begin(), curve, std::string("0"));
  expected[0] = std::string(128, 's');
  expected[1].clear();
  expected[2] = std::string(64, 'd');
  expected[7] = std::to_string(44);
  EXPECT_EQ(Fields(read), expected);

  // Full fields are written as far as they reach.
  SetField(read.Colorant.InternalName, std::string(64, 'i'));
  AArchive full = Open(Direction::Writing);
  full << read << ANewColorOpt();
  ASSERT_EQ(full.Close(), 1);
  AArchive copy = Open(Direction::Reading);
  ANewColorOpt again[2];
  copy >> again[0] >> again[1];
  EXPECT_EQ(Fields(again[0]), Fields(read));
  EXPECT_EQ(Fields(again[1]), Fields(ANewColorOpt()));
}

std::vector<std::string> Read(AArchive& archive) {
  ANewColorOpt option;
  archive >> option;
  return Fields(option);
}

TEST_F(ColorArchive, ReadsWhatIsLeftOfACutRecord) {
  const std::string bytes = StoredRecord();
  AArchive whole = Reading(bytes);
  AArchive empty = Reading("");
  const std::vector<std::string> stored = Read(whole);
  const std::vector<std::string> nothing = Read(empty);
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    AArchive archive = Reading(bytes.substr(0, size));
    const std::vector<std::string> fields = Read(archive);
    EXPECT_TRUE(archive.AtEnd() != 0 && archive.IsDamaged() != 0) << size;
    for (std::size_t i = 0; i < fields.size(); ++i)
      EXPECT_THAT(fields[i], testing::AnyOf(stored[i], nothing[i], "0")) << size;
  }
  AArchive writing = Open(Direction::Writing);
  writing << 7;
  EXPECT_EQ(Read(writing), nothing);
  writing << 8;
  ASSERT_EQ(writing.Close(), 1);
  EXPECT_EQ(ReadFile(Path()), std::string("\7\0\0\0\10\0\0\0", 8));
}

}  // namespace
