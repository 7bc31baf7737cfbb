#pragma once

// What became of the paths of a document, folded.

#include <string>
#include <vector>

#include "tool/compare/fold.h"

// Of the paths that are in both documents, one setting that isn't the same.
struct TraitChange {
  const Trait* trait;
  std::size_t level;
  Value before;
  Value after;
  FoldedPaths paths;
};

struct PathChanges {
  int before = 0;  // how many whole paths the documents have
  int after = 0;
  int kept = 0;
  std::vector<FoldedPaths> lost;
  std::vector<FoldedPaths> won;
  std::vector<TraitChange> changed;
};

// Of a comparison that has a root.
PathChanges FindPathChanges(const PathComparison& comparison);

int CountOf(const std::vector<FoldedPaths>& lines);

// The options of a line at a level, in words: "every but Draft, Best".
std::string Tell(const OptionSet& options, const std::vector<std::string>& names);

// Those of all levels but where it is every one: "Glossy; Draft". Empty when it is every path.
std::string Tell(const FoldedPaths& paths, const Comparison& comparison, const PathKind& kind);

// The beginning of a list, and any other value as it stands.
Value Brief(const Value& value);
