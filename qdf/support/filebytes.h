#pragma once

// The bytes of a whole file at once.

#include <cstddef>
#include <memory>
#include <string_view>

#include "qdf/support/descriptor.h"

struct FileBytes {
  std::unique_ptr<char[]> data;  // with a NUL behind the last byte
  std::size_t size = 0;

  std::string_view Text() const { return {data.get(), size}; }
};

// Reads the regular file at the path, as it is at this moment. Answers null when it was read, and
// otherwise why it wasn't, in a few words, with errno as the system left it, 0 where it had no
// objection. Pipes and devices are refused, since they may have no end, and so is a file of 2 GiB
// and more, which may be nothing but a hole; nothing of it is read.
const char* ReadFileBytes(const char* path, FileBytes& bytes);

// The same for a file in an open folder, however long its whole path is.
const char* ReadFileBytes(const Descriptor& folder, const char* name, FileBytes& bytes);
