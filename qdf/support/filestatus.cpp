#include "qdf/support/filestatus.h"

#include <fcntl.h>

#include <array>

bool ReadFileStatus(const char* path, FileStatus& status) {
  struct stat found {};
  if (stat(path, &found) != 0 || !S_ISREG(found.st_mode)) return false;
  constexpr mode_t kAttributes = 07777;
  status = {found.st_mode & kAttributes, found.st_atim, found.st_mtim};
  return true;
}

bool WriteFileStatus(const char* path, const FileStatus& status) {
  const std::array<timespec, 2> times{status.accessed, status.modified};
  const bool timed = utimensat(AT_FDCWD, path, times.data(), 0) == 0;
  return chmod(path, status.mode) == 0 && timed;
}
