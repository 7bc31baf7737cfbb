#pragma once

// The folder that holds the documents of a host and the files that these name.

#include "qdf/support/afilepath.h"

// The path of what bears that name in the folder OutputDrivers under the working folder.
inline AFilePath InOutputDrivers(const char* name) {
  AFilePath path("OutputDrivers");
  path += name;
  return path;
}
