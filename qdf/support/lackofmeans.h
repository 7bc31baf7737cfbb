#pragma once

// Whether the process lacked means for an operation on a file: memory, descriptors, or a path that
// the system takes. That says nothing of the file. To be asked when the operation has failed, with
// errno as it left it.

#include <cerrno>
#include <new>

inline bool LackedMeans() {
  return errno == ENOMEM || errno == EMFILE || errno == ENFILE || errno == ENAMETOOLONG;
}

inline void ThrowIfWithoutMeans() {
  if (LackedMeans()) throw std::bad_alloc();
}
