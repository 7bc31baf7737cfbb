#include "tool/compare/pathchanges.h"

#include <map>
#include <numeric>

#include "tool/reportline.h"

namespace {

// Either document.
using Side = const PathNode* PathPair::*;

bool Ends(const PathNode* path) { return path->children.empty(); }

int CountWhole(const PathPair& path, Side side) {
  int count = 0;
  for (const PathPair& child : path.children) {
    if (child.*side != nullptr) count += CountWhole(child, side);
  }
  return Ends(path.*side) && path.entry >= 0 ? 1 : count;
}

int CountKept(const PathPair& path) {
  if (!path.IsInBoth()) return 0;
  if (Ends(path.before) && Ends(path.after)) return path.entry >= 0 ? 1 : 0;
  int count = 0;
  for (const PathPair& child : path.children) count += CountKept(child);
  return count;
}

// The paths of one document that the other one doesn't have.
std::vector<FoldedPaths> Missing(const PathPair& root, Side side, Side other) {
  FoldQuestion question;
  question.exists = [=](const PathPair& path) { return path.*side != nullptr; };
  question.label = [=](const PathPair& path, std::size_t) {
    constexpr int kMissing = 1;
    const bool isMissing = path.*other == nullptr || Ends(path.*side) != Ends(path.*other);
    if (isMissing) return CountWhole(path, side) > 0 ? kMissing : FoldQuestion::kNothing;
    return Ends(path.*side) ? FoldQuestion::kNothing : FoldQuestion::kLookBelow;
  };
  question.count = [=](const PathPair& path) { return CountWhole(path, side); };
  return FoldPaths(root, question);
}

// The changes of one trait, numbered from 1 by their first appearance.
class NumberedChanges {
 public:
  explicit NumberedChanges(std::size_t place) : place_(place) {}

  // 0 when the trait is the same.
  int NumberOf(const PathPair& path) {
    const Traits* before = path.before->traits.get();
    const Traits* after = path.after->traits.get();
    const auto [known, isNew] = known_.emplace(std::pair(before, after), 0);
    if (isNew && !((*before)[place_] == (*after)[place_])) {
      const std::pair texts(LineOf((*before)[place_]), LineOf((*after)[place_]));
      const int next = static_cast<int>(changes_.size()) + 1;
      const auto [number, isFirst] = numbers_.emplace(texts, next);
      if (isFirst) changes_.emplace_back(&(*before)[place_], &(*after)[place_]);
      known->second = number->second;
    }
    return known->second;
  }

  TraitChange Change(FoldedPaths paths) const {
    const auto& [before, after] = changes_[static_cast<std::size_t>(paths.label - 1)];
    return {*before, *after, std::move(paths)};
  }

 private:
  // Whole, unlike a line for people, and another one for nothing than for any text.
  static std::string LineOf(const Value& value) {
    const List* list = AsList(value);
    if (list == nullptr) return std::to_string(value.data.index()) + LineText(value);
    std::string line;
    for (const Value& each : *list) line += LineText(each) + '\n';
    return line;
  }

  std::size_t place_;
  std::map<std::pair<const Traits*, const Traits*>, int> known_;
  std::map<std::pair<std::string, std::string>, int> numbers_;
  std::vector<std::pair<const Value*, const Value*>> changes_;
};

TraitChanges FindTraitChanges(const PathPair& root, const Trait& trait, std::size_t level,
                              std::size_t place) {
  NumberedChanges numbers(place);
  FoldQuestion question;
  question.exists = [](const PathPair& path) { return path.IsInBoth(); };
  question.label = [&](const PathPair& path, std::size_t at) {
    return at == level ? numbers.NumberOf(path) : FoldQuestion::kLookBelow;
  };
  TraitChanges changes{&trait, level, {}, {}};
  for (FoldedPaths& paths : FoldPaths(root, question)) {
    changes.changes.push_back(numbers.Change(std::move(paths)));
  }
  if (changes.changes.empty()) return changes;
  question.label = [&](const PathPair& path, std::size_t at) {
    constexpr int kChanged = 1;
    return at != level                   ? FoldQuestion::kLookBelow
           : numbers.NumberOf(path) != 0 ? kChanged
                                         : FoldQuestion::kNothing;
  };
  changes.paths = FoldPaths(root, question);
  return changes;
}

}  // namespace

PathChanges FindPathChanges(const PathComparison& comparison) {
  const PathPair& root = *comparison.root;
  PathChanges changes;
  changes.before = CountWhole(root, &PathPair::before);
  changes.after = CountWhole(root, &PathPair::after);
  changes.kept = CountKept(root);
  changes.lost = Missing(root, &PathPair::before, &PathPair::after);
  changes.won = Missing(root, &PathPair::after, &PathPair::before);
  const auto& traits = comparison.kind->traits;
  for (std::size_t level = 0; level < traits.size(); ++level) {
    for (std::size_t place = 0; place < traits[level].size(); ++place) {
      TraitChanges found = FindTraitChanges(root, traits[level][place], level, place);
      if (!found.changes.empty()) changes.changed.push_back(std::move(found));
    }
  }
  return changes;
}

int CountOf(const std::vector<FoldedPaths>& lines) {
  return std::accumulate(lines.begin(), lines.end(), 0,
                         [](int sum, const FoldedPaths& line) { return sum + line.count; });
}

std::string Tell(const OptionSet& options, const std::vector<std::string>& names) {
  constexpr std::size_t kMostNamed = 4;
  std::string text = options.kind == OptionSet::kOnly ? "" : "every";
  if (options.kind == OptionSet::kExcept) text += " but ";
  for (std::size_t i = 0; i < options.entries.size(); ++i) {
    if (i == kMostNamed)
      return text + " and " + std::to_string(options.entries.size() - i) + " more";
    text += (i > 0 ? ", " : "") + names[static_cast<std::size_t>(options.entries[i])];
  }
  return text;
}

std::string Tell(const FoldedPaths& paths, const Comparison& comparison, const PathKind& kind) {
  std::string text;
  for (std::size_t i = 0; i < paths.options.size(); ++i) {
    if (paths.options[i].kind == OptionSet::kEvery) continue;
    text += (text.empty() ? "" : "; ") + Tell(paths.options[i], comparison.NamesOf(kind.levels[i]));
  }
  return text.empty() ? "all of them" : text;
}

Value Brief(const Value& value) {
  constexpr std::size_t kMost = 2;
  const List* list = AsList(value);
  if (list == nullptr || list->size() <= kMost) return value;
  const List first(list->begin(), list->begin() + kMost);
  return LineText(first) + " and " + std::to_string(list->size() - kMost) + " more";
}
