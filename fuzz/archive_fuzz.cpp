// Archives: any bytes are read without harm and in a bounded number of steps.

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

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  ReadAsRecords(input);
  ReadAnything(input.substr(0, size / 2), Choices(input.substr(size / 2)));
  return 0;
}
