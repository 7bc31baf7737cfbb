#pragma once

// Saving a whole file at once: all or nothing.

#include <string_view>

// Makes the bytes the content of the regular file at the path, in place: an existing file keeps its
// identity, owner and mode, and links are followed to it. A file that doesn't exist is made; its
// folder must be there.
//
// Non-zero on success. Otherwise 0, with the former content whole and, where there was no file,
// none left behind: no permission, no room (full disk, quota), beyond the process's limit on file
// sizes (whose signal is never raised), a folder, a pipe or a device at the path, or a link that
// leads nowhere. Room for the whole file, also where the former one has holes, is taken before
// anything is changed.
//
// A mixture of both contents is left only by a disk that fails while it is being written to, by a
// file system that needs new room for what is overwritten and can't reserve it, and by one that
// takes bytes and finds no room when it stores them later. Nothing is thrown or allocated.
int SaveFileBytes(const char* path, std::string_view bytes);
