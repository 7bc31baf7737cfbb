#include "tool/compare/fold.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace {

// What is told below a path has a shape: a label, or a negative number for groups of paths. Equal
// shapes have equal numbers.
struct Group {
  OptionSet options;
  int shape;

  bool operator<(const Group& other) const {
    return std::tie(options, shape) < std::tie(other.options, other.shape);
  }
};

using Groups = std::map<Group, std::vector<int>>;  // with their counts

struct Folded {
  bool exists = true;
  int shape = FoldQuestion::kNothing;
  std::vector<int> counts{};  // for each line that the shape gives
};

// "All but these" is for when these are few.
OptionSet MakeSet(std::vector<int> entries, const std::vector<int>& all) {
  if (entries.size() == all.size()) return {OptionSet::kEvery};
  constexpr std::size_t kMostExceptions = 3;
  const std::size_t missing = all.size() - entries.size();
  if (missing > kMostExceptions || entries.size() <= missing) {
    return {OptionSet::kOnly, std::move(entries)};
  }
  std::vector<int> exceptions;
  std::set_difference(all.begin(), all.end(), entries.begin(), entries.end(),
                      std::back_inserter(exceptions));
  return {OptionSet::kExcept, std::move(exceptions)};
}

void AddTo(std::vector<int>& sums, const std::vector<int>& counts) {
  sums.resize(counts.size(), 0);
  std::transform(counts.begin(), counts.end(), sums.begin(), sums.begin(), std::plus<>());
}

class Folder {
 public:
  explicit Folder(const FoldQuestion& question) : question_(question) {}

  std::vector<FoldedPaths> Lines(const PathPair& root) {
    const Folded folded = Fold(root, 0);
    std::vector<FoldedPaths> lines;
    AddLines(folded.shape, {}, lines);
    for (std::size_t i = 0; i < lines.size(); ++i) lines[i].count = folded.counts[i];
    return lines;
  }

 private:
  struct Part {
    std::vector<int> entries;
    std::vector<int> counts;
  };

  Folded Fold(const PathPair& path, std::size_t level) {
    const int label = question_.label(path, level);
    if (label == FoldQuestion::kNothing) return {};
    if (label == FoldQuestion::kEndsHere) {
      return Join({{Group{{OptionSet::kNone}, 1}, {question_.count(path, level)}}});
    }
    if (label != FoldQuestion::kLookBelow) return {true, label, {question_.count(path, level)}};
    std::vector<int> all;
    std::map<int, Part> parts;  // by shape
    for (const PathPair& child : path.children) {
      if (!question_.exists(child)) continue;
      const Folded folded = Fold(child, level + 1);
      if (!folded.exists) continue;
      all.push_back(child.entry);
      if (folded.shape == FoldQuestion::kNothing) continue;
      Part& part = parts[folded.shape];
      part.entries.push_back(child.entry);
      AddTo(part.counts, folded.counts);
    }
    if (all.empty()) return {.exists = false};
    if (parts.empty()) return {};
    Groups groups;
    for (auto& [shape, part] : parts) {
      groups.emplace(Group{MakeSet(std::move(part.entries), all), shape}, std::move(part.counts));
    }
    return Join(groups);
  }

  Folded Join(const Groups& groups) {
    const Group& first = groups.begin()->first;
    if (first.options.kind == OptionSet::kEvery && first.shape > 0) {
      return {true, first.shape, groups.begin()->second};
    }
    std::vector<Group> shape;
    Folded folded;
    for (const auto& [group, counts] : groups) {
      shape.push_back(group);
      folded.counts.insert(folded.counts.end(), counts.begin(), counts.end());
    }
    const int next = -1 - static_cast<int>(shapes_.size());
    const auto [place, isNew] = numbers_.emplace(std::move(shape), next);
    if (isNew) shapes_.push_back(&place->first);
    folded.shape = place->second;
    return folded;
  }

  void AddLines(int shape, const std::vector<OptionSet>& above,
                std::vector<FoldedPaths>& lines) const {
    if (shape >= 0) {
      if (shape != FoldQuestion::kNothing) lines.push_back({shape, above});
      return;
    }
    for (const Group& group : *shapes_[static_cast<std::size_t>(-1 - shape)]) {
      std::vector<OptionSet> options = above;
      options.push_back(group.options);
      AddLines(group.shape, options, lines);
    }
  }

  const FoldQuestion& question_;
  std::map<std::vector<Group>, int> numbers_;
  std::vector<const std::vector<Group>*> shapes_;
};

}  // namespace

std::vector<FoldedPaths> FoldPaths(const PathPair& root, const FoldQuestion& question) {
  return Folder(question).Lines(root);
}
