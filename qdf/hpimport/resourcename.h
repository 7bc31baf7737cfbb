#pragma once

// The test by which a resource file is known, for discovery and sweep alike.

#include <optional>
#include <string_view>

// The parts of a resource file's path; they point into it.
struct ResourceName {
  std::string_view media;
  std::string_view quality;
  std::string_view file;
};

// None unless the path has the form M/Q/M_Q.xml at its end, ignoring case.
std::optional<ResourceName> FindResourceName(std::string_view path);
