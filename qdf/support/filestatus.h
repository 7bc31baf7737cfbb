#pragma once

// The attributes and times of a file, read and written back.

#include <sys/stat.h>

struct FileStatus {
  mode_t mode;
  timespec accessed;
  timespec modified;

  // Its owner may not write it. Only the owner and root can lift that, and for the owner the rights
  // of the others don't count.
  bool IsReadOnly() const { return (mode & S_IWUSR) == 0; }
};

// False when no regular file stands at the path or it can't be examined.
bool ReadFileStatus(const char* path, FileStatus& status);

// Gives the file these attributes and times. False when one of them stays as it was.
bool WriteFileStatus(const char* path, const FileStatus& status);
