#pragma once

// What became of the paths of a document, folded.

#include <string>
#include <utility>
#include <vector>

#include "tool/compare/fold.h"

// Of the paths that are in both documents, one setting that isn't the same.
struct TraitChange {
  Value before;
  Value after;
  FoldedPaths paths;
};

// All changes of a setting.
struct TraitChanges {
  const Trait* trait;
  std::size_t level;
  std::vector<TraitChange> changes;
  std::vector<FoldedPaths> paths;  // of all the changes together
};

struct PathChanges {
  int before = 0;  // how many paths to the end the documents have
  int after = 0;
  int kept = 0;
  std::vector<FoldedPaths> lost;
  std::vector<FoldedPaths> won;
  // Paths that stop on the way: no query gets through them.
  std::vector<FoldedPaths> deadEndsGone;
  std::vector<FoldedPaths> deadEndsNew;
  std::vector<TraitChanges> changed;  // settings with a change

  bool Any() const {
    return !lost.empty() || !won.empty() || !deadEndsGone.empty() || !deadEndsNew.empty() ||
           !changed.empty();
  }
};

// Of a comparison that has a root.
PathChanges FindPathChanges(const PathComparison& comparison);

int CountOf(const std::vector<FoldedPaths>& lines);

// The options of a line at a level, in words: "every but Draft, Best".
std::string Tell(const OptionSet& options, const std::vector<std::string>& names);

// Those of all levels but where it is every one: "Glossy; Draft", or "all of them".
std::string Tell(const FoldedPaths& paths, const Comparison& comparison, const PathKind& kind);

// Both values for people. Of long lists only the first of those items that aren't in both: the
// beginnings of the lists may well be the same.
std::pair<Value, Value> BriefChange(const Value& before, const Value& after);
