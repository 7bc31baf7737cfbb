#pragma once

// The attributes and times of a file, read and written back.

#include <sys/stat.h>

struct FileStatus {
  mode_t mode;
  timespec accessed;
  timespec modified;

  // Nobody may write the file. Some users could nevertheless, and must not.
  bool IsReadOnly() const { return (mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0; }
};

// False when no regular file stands at the path or it can't be examined.
bool ReadFileStatus(const char* path, FileStatus& status);

// Gives the file these attributes and times. False when one of them stays as it was.
bool WriteFileStatus(const char* path, const FileStatus& status);
