// Archives: any bytes are read without harm and in a bounded number of steps; what is read of a
// written archive, also past tags that the reader doesn't ask for, gives the same archive again.

#include "fuzz/fuzzing.h"
#include "qdf/definition/colorarchive.h"

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

// What is read is written again, and gives the same bytes.
void WriteAndRead(Choices choose) {
  const bool skips = choose.Chance(2);
  AString text(choose.Text(50).c_str());
  ANewColorOpt options[2];
  // An odd number of bytes, over and over, so that neighbours differ.
  const std::string pattern(choose.Bytes(31));
  for (std::size_t i = 0; i < sizeof options && !pattern.empty(); ++i)
    reinterpret_cast<char*>(options)[i] = pattern[i % pattern.size()];
  std::string former;
  for (int i = 0; i < 2; ++i) {
    MemoryFile file;
    AArchive writing(file.Path(), Direction::Writing);
    writing.TagStart().Tag(1) << text;
    writing.Tag(2) << options[0];
    writing.TagEnd() << options[1];
    Require(writing.Close() != 0, "an archive is saved");
    if (i > 0) RequireEqual(former, file.Bytes(), "what was read is written again");
    former = file.Bytes();
    AArchive reading(file.Path(), Direction::Reading);
    AString textRead(skips ? text : "");
    ANewColorOpt read[2];
    reading.TagStart();
    if (!skips) reading.Tag(1) >> textRead;
    reading.Tag(2) >> read[0];
    reading.TagEnd() >> read[1];
    Require(reading.AtEnd() != 0 && reading.IsDamaged() == 0, "all of it is read");
    Require(text == textRead, "a text");
    for (int record = 0; record < 2; ++record) options[record] = read[record];
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  ReadAsRecords(input);
  ReadAnything(input.substr(0, size / 2), Choices(input.substr(size / 2)));
  WriteAndRead(Choices(input));
  return 0;
}
