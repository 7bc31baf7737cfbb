#include "qdf/support/filebytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "qdf/support/lackofmeans.h"

namespace {

constexpr off_t kTooLarge = off_t{1} << 31;

const char* SystemReason() {
  switch (errno) {
    case ENOENT:
    case ENOTDIR:
      return "no such file";
    case EACCES:
      return "no permission to read it";
    case ELOOP:
      return "the links lead nowhere";
    default:
      return LackedMeans() ? NameOfLack() : "it can't be read";
  }
}

// A relative path begins in the folder with that number.
const char* ReadFileBytes(int folder, const char* path, FileBytes& bytes) {
  errno = 0;
  // Non-blocking, since opening a pipe would otherwise wait for a writer.
  const Descriptor file(openat(folder, path, O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) return SystemReason();
  if (S_ISDIR(status.st_mode)) return "it is a folder";
  if (!S_ISREG(status.st_mode)) return "it is no regular file";
  if (status.st_size >= kTooLarge) return "it is too large";

  const auto expected = static_cast<std::size_t>(status.st_size);
  bytes.data = std::make_unique_for_overwrite<char[]>(expected + 1);
  bytes.size = 0;
  while (bytes.size < expected) {
    const ssize_t got = read(file.Number(), bytes.data.get() + bytes.size, expected - bytes.size);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return SystemReason();
    if (got == 0) break;  // the file has shrunk
    bytes.size += static_cast<std::size_t>(got);
  }
  bytes.data[bytes.size] = '\0';
  return nullptr;
}

}  // namespace

const char* ReadFileBytes(const char* path, FileBytes& bytes) {
  return ReadFileBytes(AT_FDCWD, path, bytes);
}

const char* ReadFileBytes(const Descriptor& folder, const char* name, FileBytes& bytes) {
  return ReadFileBytes(folder.Number(), name, bytes);
}
