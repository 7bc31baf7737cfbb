#pragma once

// One line of a custom media file, read and made. The object that hosts use and whoever explains a
// file go through the same two operations.

#include <string>
#include <string_view>

struct CustomMediaLine {
  enum class Kind { Profile, NameForMedia, ProfileForMedia };

  Kind kind = Kind::Profile;
  std::string_view media;  // empty for a Profile
  std::string_view value;
};

// Answers null and the line's parts, which point into it, when the line counts; otherwise why it
// doesn't, and leaves the parts alone.
const char* ReadCustomMediaLine(std::string_view text, CustomMediaLine& line);

// With its line end.
std::string MakeCustomMediaLine(const CustomMediaLine& line);
