#pragma once

// Text files: AStdioFile reads one line by line and writes one piece by piece. Bytes pass through
// unchanged.

#include <cstddef>
#include <string>

#include "qdf/support/afilepath.h"
#include "qdf/support/filebytes.h"

// What Open says when it fails.
struct AFileException {
  const char* Reason = nullptr;  // in a few words, never owned
};

class AFile {
 public:
  enum EFileKind { kAnyFile = 0 };

  // How a file is opened. The second makes a file, or empties the one that is there at once: what
  // must survive a failed save goes through SaveFileBytes instead.
  static constexpr unsigned int kRead = 1;
  static constexpr unsigned int kCreate = 0x102;

  AFile() = default;
  virtual ~AFile();
  AFile(const AFile&) = delete;
  AFile& operator=(const AFile&) = delete;
};

class AStdioFile : public AFile {
 public:
  AStdioFile() = default;
  ~AStdioFile() override;  // closes the file

  // 1 when the file is open; otherwise 0, and the reason in `exception` unless that is null. Only
  // regular files are opened: a folder, a pipe or a device is refused without waiting for it. A
  // file is read as it is at this moment. A file that was open before is closed.
  int Open(AFilePath& path, unsigned int mode, AFileException* exception, EFileKind kind);

  // Reads up to the end of the line, which stays in the buffer, or as much of the line as fits: the
  // next call goes on there. So a capacity of 1,024 cuts a longer line into pieces of 1,023
  // characters. The buffer is ended by a NUL; a NUL within a line ends the text there as well, and
  // what stands behind it in the piece isn't seen. Null at the end of the file, when the file isn't
  // open for reading, and for a capacity that leaves no room for a character.
  char* ReadString(char* buffer, unsigned int capacity);

  // Of what was read last: the number, from 1, of its line, also when that came in pieces; its
  // bytes, those from a NUL on included; whether there is more of the line.
  std::size_t GetLineNumber() const { return lineNumber_; }
  std::size_t GetLength() const { return length_; }
  bool LineGoesOn() const { return !lineEnded_ && at_ < content_.Text().size(); }

  // Adds exactly these bytes to a file that is open for writing. They are kept until Close, which
  // stores all of them or, when there is no room, none; neither has a result. A relative path is
  // taken anew when the file is saved.
  void Write(const void* bytes, unsigned int count);

  void Close();

 private:
  FileBytes content_;  // what is read
  std::size_t at_ = 0;
  std::size_t lineNumber_ = 0;
  std::size_t length_ = 0;
  bool lineEnded_ = true;

  bool writing_ = false;
  AFilePath path_;
  std::string written_;
};
