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
  std::string fields;
  const auto put = [&](const auto&... values) {
    (fields.append(reinterpret_cast<const char*>(&values), sizeof values), ...);
  };
  put(option.Frequency, option.Angle, option.Setting0, option.Setting4, option.Setting5,
      option.Setting6);
  put(option.Setting7, option.Setting8, option.Setting9, option.Setting10, option.CurveValues,
      option.CurveFlags);
  put(option.Colorant.IsSpotColor, option.Colorant.IsPrint, option.Colorant.ColorDepth);
  put(option.Colorant.ColorantSetting5);
  fields.append(FieldText(option.Shape))
      .append("|")
      .append(FieldText(option.Colorant.InternalName));
  return fields.append("|").append(FieldText(option.Colorant.DisplayName));
}

void WriteRecordsAndRead(Choices choose) {
  MemoryFile file;
  ANewColorOpt written;
  const std::string names[] = {choose.Text(200), choose.Text(100), choose.Text(100),
                               choose.Text(50)};
  const auto number = static_cast<int>(choose.Below(256));
  const auto tag = static_cast<unsigned char>(choose.Below(200));
  const bool skips = choose.Chance(2);
  choose.Fill(written);
  SetField(written.Shape, names[0]);
  SetField(written.Colorant.InternalName, names[1]);
  SetField(written.Colorant.DisplayName, names[2]);
  {
    AArchive archive(file.Path(), Direction::Writing);
    archive << number << written;
    archive.TagStart().Tag(tag) << number << names[3].c_str();
    (archive.Tag(static_cast<unsigned char>(tag + 1)) << written).TagEnd() << written;
    Require(archive.Close() != 0, "an archive is saved");
  }
  AArchive archive(file.Path(), Direction::Reading);
  ANewColorOpt read[3];
  int numbers[2] = {number, number};
  AString text(names[3].c_str());
  archive >> numbers[0] >> read[0];
  archive.TagStart();
  if (!skips) archive.Tag(tag) >> numbers[1] >> text;
  archive.Tag(static_cast<unsigned char>(tag + 1)) >> read[1];
  archive.Tag(static_cast<unsigned char>(tag + 2)).TagEnd() >> read[2];
  Require(numbers[0] == number && numbers[1] == number, "a number");
  Require(archive.AtEnd() != 0 && archive.IsDamaged() == 0, "all of it is read");
  RequireEqual(names[3], std::string(text), "a text");
  for (const ANewColorOpt& option : read) RequireEqual(Fields(written), Fields(option), "a record");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  ReadAsRecords(input);
  ReadAnything(input.substr(0, size / 2), Choices(input.substr(size / 2)));
  WriteRecordsAndRead(Choices(input));
  return 0;
}
