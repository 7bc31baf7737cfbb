#pragma once

// What the fuzz targets share. A target is one file, NAME_fuzz.cpp: it defines the function below,
// which takes one input, does with it what a host would do, and ends the program when a property
// doesn't hold. scripts/fuzz runs the targets, and the tests run them over the inputs that are
// kept in corpus/NAME and crashes/NAME.

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "qdf/support/afilepath.h"
#include "tests/files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline void RequireEqual(const std::string& expected, const std::string& actual, const char* what) {
  if (expected == actual) return;
  std::fprintf(stderr, "%s\nexpected: %s\nbut was:  %s\n", what, expected.c_str(), actual.c_str());
  std::abort();
}

inline void Require(bool holds, const char* what) {
  RequireEqual("yes", holds ? "yes" : "no", what);
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Takes one line with its end off the text, in pieces of 1,023 characters, up to a NUL.
inline std::string TakeLine(std::string_view& text) {
  const std::string_view piece = text.substr(0, 1023);
  const std::string line(piece.substr(0, std::min(piece.find('\n'), piece.size() - 1) + 1));
  text.remove_prefix(line.size());
  return line.c_str();
}

// A regular file without a disk behind it.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view bytes = {}) : number_(memfd_create("fuzz", MFD_CLOEXEC)) {
    path_ = AFilePath(("/proc/self/fd/" + std::to_string(number_)).c_str());
    WriteFile(static_cast<const char*>(path_), bytes);
  }
  ~MemoryFile() { close(number_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  AFilePath& Path() { return path_; }
  std::string Bytes() const { return ReadFile(static_cast<const char*>(path_)); }

 private:
  int number_;
  AFilePath path_;
};

// Makes choices from the bytes of an input, the first ones when there are no more bytes.
class Choices {
 public:
  explicit Choices(std::string_view bytes) : rest_(bytes) {}

  bool AtEnd() const { return rest_.empty(); }

  std::string_view Bytes(std::size_t count) {
    const std::string_view bytes = rest_.substr(0, count);
    rest_.remove_prefix(bytes.size());
    return bytes;
  }

  // The limit is 256 at most.
  unsigned int Below(unsigned int limit) {
    const std::string_view byte = Bytes(1);
    return byte.empty() ? 0 : static_cast<unsigned char>(byte.front()) % limit;
  }
  bool Chance(unsigned int oneIn) { return Below(oneIn) == oneIn - 1; }
  template <class Value, std::size_t N>
  const Value& OneOf(const Value (&values)[N]) {
    return values[Below(N)];
  }

  // A text without NUL.
  std::string Text(unsigned int shorterThan) {
    std::string text(Bytes(Below(shorterThan)));
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text;
  }

 private:
  std::string_view rest_;
};
