#pragma once

// A custom media file as a person sees it: its entries, and the lines that are none.

#include <optional>
#include <string>
#include <vector>

#include "qdf/localise/custommedia.h"
#include "qdf/localise/custommedialine.h"
#include "tool/ignoredlines.h"

struct CustomMedium {
  std::string name;
  std::optional<std::string> displayName{};
  std::optional<std::string> profile{};

  bool IsSet() const { return displayName || profile; }
};

struct CustomFile {
  bool exists = false;
  std::size_t lines = 0;
  std::size_t countingLines = 0;  // also those that set nothing
  std::vector<std::string> profiles;
  std::vector<CustomMedium> media;   // by first appearance; all are set
  std::vector<IgnoredLine> ignored;  // but for empty lines

  bool HasEntries() const { return !profiles.empty() || !media.empty(); }
};

// Throws a Failure when something stands at the path that can't be read.
CustomFile ReadCustomFile(const std::string& path);

// What a person wants to have set. An empty value removes what is set for the medium.
struct CustomChange {
  CustomMediaLine::Kind kind;
  std::string media;  // empty for a profile of the list
  std::string value;
};

// Makes the changes and saves the file, which is then read again. Throws a Failure, and the file is
// as it was, when it can't be saved; also when the last entry would go, since the library never
// writes a file without entries.
CustomFile ChangeCustomFile(const std::string& path, const std::vector<CustomChange>& changes);
