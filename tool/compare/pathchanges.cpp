#include "tool/compare/pathchanges.h"

#include <map>
#include <numeric>

#include "tool/reportline.h"

namespace {

// Either document.
using Side = const PathNode* PathPair::*;

bool Ends(const PathNode* path) { return path->children.empty(); }

// Paths that lead to the end, or those that stop on the way there.
class PathEnds {
 public:
  // Media sources needn't have margins. All inks are listed: one alone is no path to speak of.
  PathEnds(const PathKind& kind, bool areWhole)
      : least_(kind.isJob ? 2 : 1),
        shortest_(kind.levels.size() - (kind.isJob ? 0 : 1)),
        areWhole_(areWhole) {}

  bool AreWhole() const { return areWhole_; }

  // How many of them begin with the path, which has so many options.
  int Count(const PathPair& path, Side side, std::size_t level) const {
    if (path.*side == nullptr) return 0;
    if (Ends(path.*side)) return level >= least_ && (level >= shortest_) == areWhole_ ? 1 : 0;
    return SumBelow(path, [&](const PathPair& child) { return Count(child, side, level + 1); });
  }

  int CountKept(const PathPair& path, std::size_t level) const {
    if (!path.IsInBoth()) return 0;
    if (Ends(path.before) != Ends(path.after)) return 0;
    if (Ends(path.before)) return Count(path, &PathPair::before, level);
    return SumBelow(path, [&](const PathPair& child) { return CountKept(child, level + 1); });
  }

 private:
  template <class CountOne>
  static int SumBelow(const PathPair& path, CountOne count) {
    return std::accumulate(path.children.begin(), path.children.end(), 0,
                           [&](int sum, const PathPair& child) { return sum + count(child); });
  }

  std::size_t least_;     // options of a path
  std::size_t shortest_;  // that leads to the end
  bool areWhole_;
};

// The paths of one document that the other one doesn't have.
std::vector<FoldedPaths> Missing(const PathPair& root, Side side, Side other,
                                 const PathEnds& ends) {
  FoldQuestion question;
  question.exists = [=](const PathPair& path) { return path.*side != nullptr; };
  question.label = [&](const PathPair& path, std::size_t level) {
    constexpr int kMissing = 1;
    if (ends.Count(path, side, level) == 0) return FoldQuestion::kNothing;
    if (path.*other == nullptr) return kMissing;
    if (Ends(path.*side) == Ends(path.*other)) {
      return Ends(path.*side) ? FoldQuestion::kNothing : FoldQuestion::kLookBelow;
    }
    return Ends(path.*side) && ends.AreWhole() ? FoldQuestion::kEndsHere : kMissing;
  };
  question.count = [&](const PathPair& path, std::size_t level) {
    return ends.Count(path, side, level);
  };
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

constexpr std::size_t kMostItems = 2;

// The beginning of a list, and any other value as it stands.
Value Brief(const Value& value) {
  const List* list = AsList(value);
  if (list == nullptr || list->size() <= kMostItems) return value;
  const List first(list->begin(), list->begin() + kMostItems);
  return LineText(first) + " and " + std::to_string(list->size() - kMostItems) + " more";
}

// The items that the other list doesn't have, or not as often.
List Without(const List& list, const List& other) {
  std::map<std::string, int> left;
  for (const Value& item : other) ++left[LineText(item)];
  List items;
  for (const Value& item : list) {
    if (--left[LineText(item)] < 0) items.push_back(item);
  }
  return items;
}

}  // namespace

PathChanges FindPathChanges(const PathComparison& comparison) {
  const PathPair& root = *comparison.root;
  PathChanges changes;
  const PathEnds whole(*comparison.kind, true);
  const PathEnds dead(*comparison.kind, false);
  changes.before = whole.Count(root, &PathPair::before, 0);
  changes.after = whole.Count(root, &PathPair::after, 0);
  changes.kept = whole.CountKept(root, 0);
  changes.lost = Missing(root, &PathPair::before, &PathPair::after, whole);
  changes.won = Missing(root, &PathPair::after, &PathPair::before, whole);
  changes.deadEndsGone = Missing(root, &PathPair::before, &PathPair::after, dead);
  changes.deadEndsNew = Missing(root, &PathPair::after, &PathPair::before, dead);
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
  if (options.kind == OptionSet::kNone) return "none";
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

std::pair<Value, Value> BriefChange(const Value& before, const Value& after) {
  const List* former = AsList(before);
  const List* now = AsList(after);
  if (former == nullptr || now == nullptr) return {Brief(before), Brief(after)};
  if (former->size() <= kMostItems && now->size() <= kMostItems) return {before, after};
  const List gone = Without(*former, *now);
  const List added = Without(*now, *former);
  if (gone.empty() && added.empty()) return {Brief(before), "the same in another order"};
  const auto tell = [](const List& items, const List& all) {
    return items.empty() && !all.empty() ? Value("only the others") : Brief(items);
  };
  return {tell(gone, *former), tell(added, *now)};
}
