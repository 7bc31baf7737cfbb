#pragma once

// The search of a folder: what lies in it, in an order that is the same on every file system. A
// link is an entry of its own and never stands for what it leads to. What fails because the process
// lacks memory or descriptors throws bad_alloc, so that no folder counts as unreadable for it.

#include <string>
#include <string_view>
#include <vector>

#include "qdf/support/descriptor.h"

enum class EntryKind {
  Folder,
  File,   // a regular file
  Other,  // a link, a pipe, a device
};

struct DirectoryEntry {
  std::string name;
  EntryKind kind;
};

// Whether `a` comes before `b`: by the bytes of the upper-cased names, then by their bytes.
bool ComesBefore(std::string_view a, std::string_view b);

// The folder at the path, which may lead through links. Not open when there is none or it can't be
// read.
Descriptor OpenFolder(const char* path);

// A folder in an open folder. A link to a folder isn't opened.
Descriptor OpenSubfolder(const Descriptor& parent, const char* name);

// All entries of a folder in their order, without those for the folder itself and its parent. False
// when they can't be read.
bool SearchFolder(const Descriptor& folder, std::vector<DirectoryEntry>& entries);

// The same for the folder at the path.
bool SearchFolder(const char* path, std::vector<DirectoryEntry>& entries);

// Removes an entry of an open folder: a link and nothing behind it, a folder only when it is empty.
// False when it stays.
bool RemoveEntry(const Descriptor& parent, const char* name, EntryKind kind);
