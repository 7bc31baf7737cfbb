#pragma once

// Many paths told in few lines: paths that differ in one option are told together, and where all
// options of a level are meant, none is named.

#include <functional>
#include <tuple>
#include <vector>

#include "tool/compare/comparison.h"

// The options of one level that a line is about.
struct OptionSet {
  enum Kind { kEvery, kOnly, kExcept, kNone };

  Kind kind = kEvery;
  std::vector<int> entries{};  // these alone, or all but these; none where paths end above

  bool operator<(const OptionSet& other) const {
    return std::tie(kind, entries) < std::tie(other.kind, other.entries);
  }
};

struct FoldedPaths {
  int label;                       // the same for all paths that the line is about
  std::vector<OptionSet> options;  // of the first levels
  int count = 0;                   // of the paths
};

struct FoldQuestion {
  static constexpr int kNothing = 0;     // no line is about the path
  static constexpr int kLookBelow = -1;  // the paths that it begins have labels
  static constexpr int kEndsHere = -2;   // a line tells that nothing is below it, labelled 1

  // Whether there is such a path: "every" means every one of those, except where a path is to be
  // looked at below and nothing is there.
  std::function<bool(const PathPair& path)> exists;
  // What is to be told of a path of so many options: one of these, or a positive number.
  std::function<int(const PathPair& path, std::size_t level)> label;
  // As how many the path counts.
  std::function<int(const PathPair& path, std::size_t level)> count = [](const PathPair&,
                                                                         std::size_t) { return 1; };
};

std::vector<FoldedPaths> FoldPaths(const PathPair& root, const FoldQuestion& question);
