#pragma once

#include <string>

// Deletes a folder with all that it holds. A link to a folder is left alone, with what is behind
// it. What can't be deleted stays, with the folders around it.
// When memory or descriptors run out, so does what wasn't deleted until then.
void RemoveFolderTree(const char* folder);

// What kept a folder from going.
struct Remainder {
  std::string path;  // of the first entry that couldn't be deleted, empty when all are gone
  int error = 0;     // the system's number for why
};

// The same, and tells what is left. A lack of memory or descriptors, or a path that is too long,
// throws bad_alloc.
Remainder RemoveFolderTreeAndTell(const char* folder);
