#include "qdf/support/afile.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "qdf/support/nothrow.h"
#include "qdf/support/savebytes.h"

AFile::~AFile() = default;

AStdioFile::~AStdioFile() { AStdioFile::Close(); }

int AStdioFile::Open(AFilePath& path, unsigned int mode, AFileException* exception,
                     EFileKind /*kind*/) {
  Close();
  const char* reason = OrOnNoMemory("out of memory", [&] {
    if (mode == kRead) return ReadFileBytes(path, content_);
    if (mode != kCreate) return "there is no such way to open it";
    path_ = path;
    writing_ = SaveFileBytes(path, {}) != 0;
    return writing_ ? nullptr : "it can't be written";
  });
  if (reason != nullptr && exception != nullptr) exception->Reason = reason;
  return reason == nullptr ? 1 : 0;
}

char* AStdioFile::ReadString(char* buffer, unsigned int capacity) {
  const std::string_view rest = content_.Text().substr(at_);
  if (rest.empty() || capacity < 2) return nullptr;
  const std::size_t lineEnd = std::min(rest.find('\n'), rest.size() - 1);
  const std::size_t length = std::min<std::size_t>(lineEnd + 1, capacity - 1);
  std::memcpy(buffer, rest.data(), length);
  buffer[length] = '\0';
  if (lineEnded_) ++lineNumber_;
  lineEnded_ = rest[length - 1] == '\n';
  length_ = length;
  at_ += length;
  return buffer;
}

void AStdioFile::Write(const void* bytes, unsigned int count) {
  if (!writing_) return;
  writing_ = OrOnNoMemory(false, [&] {
    written_.append(static_cast<const char*>(bytes), count);
    return true;
  });
}

void AStdioFile::Close() {
  if (writing_) SaveFileBytes(path_, written_);
  writing_ = false;
  written_.clear();
  content_ = FileBytes();
  at_ = 0;
  lineNumber_ = 0;
  length_ = 0;
  lineEnded_ = true;
}
