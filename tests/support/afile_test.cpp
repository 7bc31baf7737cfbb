// Text files: lines in pieces, what doesn't open, what is written.

#include "qdf/support/afile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <tuple>
#include <vector>

#include "tests/files.h"

namespace {

using std::string_literals::operator""s;

// Empty when it opens, else why not.
std::string Opened(AStdioFile& file, const std::string& path, unsigned int mode) {
  AFilePath filePath(path.c_str());
  AFileException exception;
  const int result = file.Open(filePath, mode, &exception, AFile::kAnyFile);
  EXPECT_EQ(result != 0, exception.Reason == nullptr);
  return result != 0 ? "" : exception.Reason;
}

// "1:ab\n|2:c": each piece behind the number of its line.
std::string Pieces(const std::string& path, unsigned int capacity) {
  AStdioFile file;
  EXPECT_EQ(Opened(file, path, AFile::kRead), "");
  std::vector<char> buffer(capacity);  // of this size exactly: a sanitizer sees one byte too many
  std::string pieces;
  while (file.ReadString(buffer.data(), capacity) != nullptr) {
    pieces.append(pieces.empty() ? "" : "|").append(std::to_string(file.GetLineNumber()));
    pieces.append(":").append(buffer.data());
  }
  return pieces;
}

TEST(StdioFile, ReadsLinesInPiecesThatFitTheBuffer) {
  const TempFolder folder;
  const std::tuple<std::string, unsigned int, std::string> rows[] = {
      {"", 9, ""},
      {"a\n\nb", 9, "1:a\n|2:\n|3:b"},
      {"abc", 1, ""},
      {"abcdefg\nh", 4, "1:abc|1:def|1:g\n|2:h"},
      {"abc", 0, ""},
      {"abc\ndef", 4, "1:abc|1:\n|2:def"},
      {"a\r\n", 9, "1:a\r\n"},
      {"ab\0cd\ne"s, 9, "1:ab|2:e"},
  };
  for (const auto& [bytes, capacity, pieces] : rows) {
    EXPECT_EQ(Pieces(folder.Write("file", bytes), capacity), pieces) << bytes;
  }
}

// A hole takes no room on the disk, but it would take it in memory.
TEST(StdioFile, RefusesWhatIsNoRegularFileOrTooLarge) {
  const TempFolder folder;
  const std::string hole = folder.Write("hole", "");
  ASSERT_EQ(truncate(hole.c_str(), off_t{1} << 31), 0);
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  ASSERT_EQ(mknod(folder.Path("socket").c_str(), S_IFSOCK | 0600, 0), 0);
  const std::pair<const char*, const char*> rows[] = {{"", "it is a folder"},
                                                      {"pipe", "it is no regular file"},
                                                      {"socket", "it can't be read"},
                                                      {"missing/file", "no such file"},
                                                      {"hole", "it is too large"}};
  for (const auto& [name, reason] : rows) {
    const std::string path = folder.Path(name);
    AStdioFile file;
    EXPECT_EQ(Opened(file, path, 1), reason);
    EXPECT_EQ(Opened(file, path, 0), "there is no such way to open it");
    EXPECT_EQ(Opened(file, path, 0x102), path == hole ? "" : "it can't be written") << path;
    char buffer[8];
    EXPECT_EQ(file.ReadString(buffer, sizeof buffer), nullptr);
    file.Write("lost", 4);
  }
}

TEST(StdioFile, EmptiesAFileWhenItIsOpenedForWriting) {
  const TempFolder folder;
  const std::string path = folder.Write("file", "former");
  {
    AStdioFile file;
    ASSERT_EQ(Opened(file, path, 0x102), "");
    EXPECT_EQ(ReadFile(path), "");
    file.Write("a\nb", 3);
    file.Write("\0c", 2);
  }
  EXPECT_EQ(ReadFile(path), "a\nb\0c"s);
}

}  // namespace
