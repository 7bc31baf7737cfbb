// Archives: any bytes are read without harm and in a bounded number of steps; records, numbers and
// texts that were written come back, also past tags that the reader doesn't ask for.

#include "fuzz/fuzzing.h"
#include "qdf/definition/colorarchive.h"
#include "qdf/support/text.h"

namespace {

using Direction = AArchive::Direction;

void ReadAnything(std::string_view bytes, Choices choose) {
  MemoryFile file(bytes);
  AArchive archive(file.Path(), Direction::Reading);
  unsigned long number = 0;
  double wide = 0;
  AString text;
  while (!choose.AtEnd()) {
    const auto tag = static_cast<unsigned char>(choose.Below(16));
    const unsigned int kind = choose.Below(7);
    if (kind == 0) archive.TagStart();
    if (kind == 1) archive.TagEnd();
    if (kind == 2) archive.Tag(tag);
    if (kind == 3) archive.GetTag(tag);
    if (kind == 4) archive >> number;
    if (kind == 5) archive >> wide;
    if (kind == 6) archive >> text;
    Require(text.GetLength() <= static_cast<int>(bytes.size()),
            "a text is no longer than the file");
  }
}

void ReadAsRecords(std::string_view bytes) {
  MemoryFile file(bytes);
  AArchive archive(file.Path(), Direction::Reading);
  ANewColorOpt option;
  for (std::size_t records = 0; archive.AtEnd() == 0; ++records) {
    Require(records <= bytes.size(), "each record takes a byte or more");
    archive >> option;
  }
}

// The bytes of all numbers, and the texts.
std::string Fields(const ANewColorOpt& option) {
  const ColorantInfo& colorant = option.Colorant;
  std::string fields;
  const auto put = [&](const auto&... values) {
    (fields.append(reinterpret_cast<const char*>(&values), sizeof values), ...);
  };
  put(option.Frequency, option.Angle, option.Setting0, option.Setting4, option.Setting5,
      option.Setting6, option.Setting7, option.Setting8, option.Setting9, option.Setting10);
  put(option.CurveValues, option.CurveFlags);
  put(colorant.IsSpotColor, colorant.IsPrint, colorant.ColorDepth, colorant.ColorantSetting5);
  for (const std::string_view text : {FieldText(option.Shape), FieldText(colorant.InternalName),
                                      FieldText(colorant.DisplayName)}) {
    fields.append(text).append("|");
  }
  return fields;
}

void WriteAndRead(Choices choose) {
  MemoryFile file;
  const auto tag = static_cast<unsigned char>(choose.Below(200));
  const auto nextTag = static_cast<unsigned char>(tag + 1);
  const bool skips = choose.Chance(2);
  const unsigned int number = choose.Below(256) << 24U;
  const std::string text = choose.Text(50);
  const std::string shape = choose.Text(200);
  const std::string internalName = choose.Text(100);
  const std::string displayName = choose.Text(100);
  ANewColorOpt written;
  // An odd number of bytes, over and over, so that neighbours differ.
  const std::string pattern(choose.Bytes(31));
  for (std::size_t i = 0; i < sizeof written && !pattern.empty(); ++i)
    reinterpret_cast<char*>(&written)[i] = pattern[i % pattern.size()];
  SetField(written.Shape, shape);
  SetField(written.Colorant.InternalName, internalName);
  SetField(written.Colorant.DisplayName, displayName);
  {
    AArchive archive(file.Path(), Direction::Writing);
    archive << number << written;
    archive.TagStart().Tag(tag) << number << text.c_str();
    archive.Tag(nextTag) << written;
    archive.TagEnd() << written;
    Require(archive.Close() != 0, "an archive is saved");
  }
  AArchive archive(file.Path(), Direction::Reading);
  ANewColorOpt read[3];
  unsigned int numbers[2] = {0, skips ? number : 0};
  AString textRead(skips ? text.c_str() : "");
  archive >> numbers[0] >> read[0];
  archive.TagStart();
  if (!skips) archive.Tag(tag) >> numbers[1] >> textRead;
  archive.Tag(nextTag) >> read[1];
  archive.TagEnd() >> read[2];
  Require(archive.AtEnd() != 0 && archive.IsDamaged() == 0, "all of it is read");
  Require(numbers[0] == number && numbers[1] == number, "a number");
  RequireEqual(text, std::string(textRead), "a text");
  for (const ANewColorOpt& option : read) RequireEqual(Fields(written), Fields(option), "a record");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  ReadAsRecords(input);
  ReadAnything(input.substr(0, size / 2), Choices(input.substr(size / 2)));
  WriteAndRead(Choices(input));
  return 0;
}
