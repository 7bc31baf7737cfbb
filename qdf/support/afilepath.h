#pragma once

// AFilePath is a path in the file system, built by joining components with "/".

#include "qdf/support/astring.h"
#include "qdf/support/export.h"

class APMQDF_EXPORT AFilePath {
 public:
  // The default path stands for the working folder of the process: it is empty, and the first
  // component that is joined to it begins a relative path.
  AFilePath() = default;
  explicit AFilePath(const char* path) : path_(path) {}

  // Joins one component, with exactly one "/" at the joint. One that begins with "/" is joined like
  // any other, not taken for an absolute path. An empty one changes nothing.
  AFilePath& operator+=(const char* component);
  AFilePath& operator+=(const AString& component);

  operator const char*() const { return path_; }
  AString GetFullPath() const { return path_; }

  // Non-zero when a file or a folder stands at the path; links count as what they lead to.
  int exists() const;
  int isDirectory() const;

  // The last component with its extension; trailing separators don't count.
  void getFileName(AString& name) const;

 private:
  AString path_;
};
