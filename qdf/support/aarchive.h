#pragma once

// AArchive stores values in a file of the host's and reads them back: numbers, texts and groups. A
// group tells its values apart by tags, so that records can grow: an unknown tag is passed over by
// a reader, and what a tag that isn't there would hold reads as zeros and empty texts. The bytes
// stand in docs/archive.md.
//
//   AArchive file(path, AArchive::Direction::Writing);
//   file << record << another;
//   if (file.Close() == 0) ...  // nothing was stored, as without Close
//
//   AArchive file(path, AArchive::Direction::Reading);
//   while (!file.AtEnd()) file >> record;
//
// Whatever a file holds, reading never goes beyond its end or that of a group, and takes memory in
// proportion to the file's size. An archive is used from one thread at a time.

#include <cstddef>
#include <exception>
#include <memory>

#include "qdf/support/afilepath.h"
#include "qdf/support/astring.h"
#include "qdf/support/export.h"

// The one exception that leaves the library.
class APMQDF_EXPORT AArchiveException : public std::exception {
 public:
  static constexpr int kReadOnly = 2;

  AArchiveException(int cause, AString fileName);
  ~AArchiveException() override;
  const char* what() const noexcept override;

  int Cause;         // kReadOnly: a reading archive was told to write a value
  AString FileName;  // the archive's path
};

class APMQDF_EXPORT AArchive {
 public:
  enum class Direction { Reading, Writing };

  // For reading the whole file is read at once. For writing nothing happens on the disk before
  // Close, and a relative path is taken then.
  AArchive(const AFilePath& path, Direction direction);
  // An archive that wasn't closed stores nothing: a host that fails between two records keeps its
  // former file.
  ~AArchive();
  AArchive(const AArchive&) = delete;
  AArchive& operator=(const AArchive&) = delete;

  // 0 when the file couldn't be read, when memory ran out and once the archive is closed: from then
  // on everything reads as zeros, and what is written is lost.
  int IsOpen() const;
  // Writing: ends all open groups and saves the file, which must be in a folder that is there. 1
  // when it holds all that was written; 0 when it couldn't be saved, when memory ran out or when a
  // value in a group had no tag, and the file is then as it was before. Reading: 1 when the archive
  // was open.
  int Close();

  // Reading: non-zero when nothing follows what was read so far outside of all groups.
  int AtEnd() const;
  // Reading: non-zero when the file can't be what an archive wrote, as far as it was read: a length
  // leads beyond the end, or a value is longer than its place. A tag that isn't there is no damage.
  int IsDamaged() const;
  // Non-zero when the archive was opened for writing.
  int IsWriting() const { return direction_ == Direction::Writing ? 1 : 0; }
  // Throws AArchiveException when the archive was opened for reading.
  void RequireWriting() const;

  // Opens and closes a group, which may stand wherever a value may. A TagEnd without a TagStart
  // does nothing.
  AArchive& TagStart();
  AArchive& TagEnd();
  // Names the value or values that follow in the group. Tags rise within a group, and a reader
  // names those that the writer named. Outside of groups values simply follow each other, and this
  // does nothing.
  AArchive& Tag(unsigned char tag);
  // Reading: the same, and whether the tag is in the group, non-zero if so; 0 when the archive is
  // open for writing. Outside of groups non-zero until the end.
  int GetTag(unsigned char tag);

  // Each of 4 bytes, but 8 for a double. Reading what isn't there gives 0, and so does an archive
  // that is open for writing.
  AArchive& operator>>(int& value);
  AArchive& operator>>(unsigned int& value);
  AArchive& operator>>(unsigned long& value);
  AArchive& operator>>(float& value);
  AArchive& operator>>(double& value);

  // These throw AArchiveException, before anything is changed, when the archive is open for
  // reading. Of an unsigned long the lower 32 bits are stored.
  AArchive& operator<<(int value);
  AArchive& operator<<(unsigned int value);
  AArchive& operator<<(unsigned long value);
  AArchive& operator<<(float value);
  AArchive& operator<<(double value);

  // What the operators below do, for a text that no NUL ends.
  AArchive& WriteText(const char* text, std::size_t length);
  AArchive& ReadText(AString& text);

 private:
  class Reader;
  class Writer;

  template <class Bits>
  Bits Take();
  template <class Bits>
  AArchive& Put(Bits bits);
  template <class Stream, class Work>
  void With(std::unique_ptr<Stream>& stream, Work work);

  Direction direction_;
  AFilePath path_;
  std::unique_ptr<Reader> reader_;  // when open for reading
  std::unique_ptr<Writer> writer_;  // when open for writing
};

// A text of any length and of any bytes, NUL included. One that is cut off reads as empty.
APMQDF_EXPORT AArchive& operator>>(AArchive& archive, AString& text);
APMQDF_EXPORT AArchive& operator<<(AArchive& archive, const AString& text);
