#pragma once

// A path is split at its last component.

#include <string_view>

struct SplitPath {
  std::string_view parent;  // all before it, with the separators; may be empty
  std::string_view last;    // without the separators behind it; empty when there is nothing else
};

inline SplitPath SplitLast(std::string_view path) {
  while (!path.empty() && path.back() == '/') path.remove_suffix(1);
  const std::size_t begin = path.rfind('/') + 1;  // 0 when there is none
  return {path.substr(0, begin), path.substr(begin)};
}
