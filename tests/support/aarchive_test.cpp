// Archives: numbers, texts and nested tags, and what is left of damaged ones.

#include "qdf/support/aarchive.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "tests/files.h"

namespace {

using std::string_literals::operator""s;
using Direction = AArchive::Direction;

class Archive : public testing::Test {
 protected:
  AArchive Open(Direction direction) { return AArchive(AFilePath(path_.c_str()), direction); }
  AArchive Reading(const std::string& bytes) {
    WriteFile(path_, bytes);
    return Open(Direction::Reading);
  }

  TempFolder folder_;
  std::string path_ = folder_.Path("archive");
};

int Int(AArchive& archive) {
  int value = -1;
  archive >> value;
  return value;
}

std::string Text(AArchive& archive) {
  AString text("former");
  archive >> text;
  return {text, static_cast<std::size_t>(text.GetLength())};
}

TEST_F(Archive, ReadsBackWhatWasWritten) {
  AString bytes;
  std::copy_n("a\0\xFF\n", 4, bytes.GetBuffer(4));
  AArchive writing = Open(Direction::Writing);
  writing << std::numeric_limits<int>::min() << 0x80000001U << 0x100000003UL << -1.0F << 2.5;
  writing << bytes;
  for (int depth = 0; depth < 20; ++depth) writing.TagStart().Tag(1);
  writing << 7;
  for (int depth = 0; depth < 20; ++depth) writing.TagEnd();
  EXPECT_EQ(writing.Close(), 1);
  EXPECT_EQ(ReadFile(path_).substr(0, 20), "\0\0\0\x80\x01\0\0\x80\x03\0\0\0\0\0\x80\xBF\0\0\0\0"s);
  unsigned int word = 0;
  unsigned long longWord = 0;
  float single = 0;
  double number = 0;
  AArchive archive = Open(Direction::Reading);
  EXPECT_EQ(Int(archive), std::numeric_limits<int>::min());
  archive >> word >> longWord >> single >> number;
  EXPECT_EQ(std::tuple(word, longWord, single, number), std::tuple(0x80000001U, 3UL, -1.0F, 2.5));
  EXPECT_EQ(Text(archive), "a\0\xFF\n"s);
  for (int depth = 0; depth < 20; ++depth) archive.TagStart().Tag(1);
  EXPECT_EQ(Int(archive), 7);
  for (int depth = 0; depth < 20; ++depth) archive.TagEnd();
  EXPECT_TRUE(archive.AtEnd() != 0 && archive.IsDamaged() == 0);
}

TEST_F(Archive, SkipsUnknownTagsAndAnswersForAbsentOnes) {
  AArchive writing = Open(Direction::Writing);
  writing.TagStart().Tag(1) << 11;
  writing.Tag(3).TagStart().Tag(2) << 32;
  writing.Tag(9) << 39;
  writing.TagEnd().Tag(5) << 51 << 52 << 53;
  writing.Tag(255) << AString("last");
  writing.TagEnd() << 99;
  EXPECT_EQ(writing.Close(), 1);
  AArchive archive = Open(Direction::Reading);
  archive.TagStart();
  EXPECT_EQ(archive.GetTag(0), 0);
  EXPECT_EQ(Int(archive), 0);
  archive.Tag(2).TagStart();  // a group that isn't there holds nothing
  EXPECT_EQ(archive.GetTag(2), 0);
  archive.TagEnd();
  EXPECT_NE(archive.GetTag(3), 0);
  archive.TagStart();
  EXPECT_EQ(Int(archive.Tag(2)), 32);
  archive.TagEnd();
  EXPECT_EQ(Text(archive.Tag(4)), "");
  EXPECT_EQ(Int(archive.Tag(5)), 51);
  EXPECT_EQ(Int(archive), 52);
  EXPECT_EQ(Text(archive.Tag(255)), "last");
  archive.TagEnd().TagEnd();
  EXPECT_EQ(archive.AtEnd(), 0);
  EXPECT_EQ(Int(archive), 99);
  EXPECT_TRUE(archive.AtEnd() != 0 && archive.IsDamaged() == 0);
}

TEST_F(Archive, ReadsZerosWhereLengthsLeadBeyondTheEnd) {
  const std::string huge = "\xFF\xFF\xFF\xFF"s;
  const std::string rows[] = {
      huge,                                               // a group
      "\x09\0\0\0\x01\x04\0\0"s,                          // a group that is cut
      "\x09\0\0\0\x01"s + huge + "\x05\0\0",              // a tag
      "\x0D\0\0\0\x01\x08\0\0\0"s + huge + "abcd",        // a text
      "\x0C\0\0\0\x01\x07\0\0\0\x04\0\0\0abc"s + "defg",  // a text beyond its tag
      "\x07\0\0\0\x01\x02\0\0\0\x05\x06"s + "\x07\x08",   // a number beyond its tag
      "\x01\0"s,                                          // no room for a length
  };
  for (const std::string& bytes : rows) {
    AArchive archive = Reading(bytes);
    archive.TagStart();
    EXPECT_EQ(Text(archive.Tag(1)), "");
    EXPECT_EQ(Int(archive), 0);
    archive.TagEnd();
    EXPECT_NE(archive.IsDamaged(), 0);
  }
}

TEST_F(Archive, TellsWhenNothingCouldBeReadOrSaved) {
  AArchive missing = Open(Direction::Reading);
  EXPECT_EQ(missing.IsOpen(), 0);
  EXPECT_NE(missing.AtEnd(), 0);
  EXPECT_EQ(Int(missing.TagStart().Tag(1)), 0);
  EXPECT_EQ(missing.Close(), 0);

  AArchive reading = Reading("\x01\0\0\0"s);
  EXPECT_THROW(reading << "x", AArchiveException);
  try {
    reading << 1;
    ADD_FAILURE() << "no exception";
  } catch (const AArchiveException& exception) {
    EXPECT_EQ(exception.Cause, 2);
    EXPECT_STREQ(exception.what(), "the archive is open for reading");
    EXPECT_EQ(exception.FileName, path_.c_str());
  }
  EXPECT_EQ(Int(reading), 1);

  WriteFile(path_, "former");
  AArchive withoutTag = Open(Direction::Writing);
  withoutTag.TagStart() << 2;
  EXPECT_EQ(withoutTag.Close(), 0);
  EXPECT_EQ(AArchive(AFilePath(folder_.Path().c_str()), Direction::Writing).Close(), 0);
  Open(Direction::Writing) << 1;
  EXPECT_EQ(ReadFile(path_), "former") << "stored without being closed";
}

}  // namespace
