#include "tool/compare/losses.h"

#include <algorithm>

#include "tool/compare/pathchanges.h"

namespace {

struct Place {
  std::string name;
  Value before;
  Value after;
};

// Of what so many are lost; the noun in the singular.
struct Unit {
  const char* key;
  const char* one;
  const char* many;
};

constexpr Unit kDocument = {"document", "document", "documents"};
constexpr Unit kEntries = {"entries", "entry", "entries"};
constexpr Unit kColorants = {"colorants", "colorant", "colorants"};
constexpr Unit kDeadEnds = {"deadEnds", "dead end", "dead ends"};
constexpr Unit kCombinations = {"combinations", "combination", "combinations"};

class Losses {
 public:
  // Further ones of this kind; the first place shows.
  void Add(const std::string& kind, const Unit& unit, int count, const Place& place) {
    const auto found = std::find_if(kinds_.begin(), kinds_.end(), [&](const Kind& each) {
      return each.name == kind && each.unit == &unit;
    });
    if (found != kinds_.end()) {
      found->count += count;
    } else {
      kinds_.push_back({kind, &unit, count, place});
    }
  }

  List Rows() const {
    List rows;
    for (const Kind& kind : kinds_) {
      const char* noun = kind.count == 1 ? kind.unit->one : kind.unit->many;
      const Place& place = kind.place;
      auto [before, after] = BriefChange(place.before, place.after);
      rows.emplace_back(
          Object{{"what", "What", kind.name},
                 {"count", nullptr, kind.count},
                 {"unit", "In", kind.unit->key, std::to_string(kind.count) + ' ' + noun},
                 {"first", "First of them", place.name},
                 {"before", "Before", place.before, std::move(before)},
                 {"after", "After", place.after, std::move(after)}});
    }
    return rows;
  }

 private:
  struct Kind {
    std::string name;
    const Unit* unit;
    int count;
    Place place;
  };
  std::vector<Kind> kinds_;
};

void AddEntries(const ListComparison& list, Losses& losses) {
  const std::string label = list.list->label;
  for (const EntryPair& entry : list.entries) {
    if (!entry.IsInBoth()) {
      const bool isGone = entry.after == nullptr;
      losses.Add(label + (isGone ? ": gone" : ": new"), kEntries, 1, {entry.name, {}, {}});
    }
    for (const FieldChange& change : entry.changes) {
      const bool isPart = !change.part.empty();
      losses.Add(label + ": " + change.label, isPart ? kColorants : kEntries, 1,
                 {entry.name + (isPart ? ", " : "") + change.part, change.before, change.after});
    }
  }
}

void AddPaths(const Comparison& comparison, const PathComparison& paths, Losses& losses) {
  const PathKind& kind = *paths.kind;
  if (!paths.root) {
    losses.Add(std::string(kind.label) + ": not compared", kDocument, 1,
               {"there are too many", {}, {}});
    return;
  }
  const PathChanges changes = FindPathChanges(paths);
  const auto tell = [&](const FoldedPaths& line) { return Tell(line, comparison, kind); };
  const auto add = [&](const std::vector<FoldedPaths>& lines, const Unit& unit, const char* what) {
    for (const FoldedPaths& line : lines) {
      losses.Add(kind.label + std::string(what), unit, line.count, {tell(line), {}, {}});
    }
  };
  add(changes.lost, kCombinations, ": gone");
  add(changes.won, kCombinations, ": new");
  add(changes.deadEndsGone, kDeadEnds, ": gone");
  add(changes.deadEndsNew, kDeadEnds, ": new");
  for (const TraitChanges& setting : changes.changed) {
    const bool isRoot = setting.level == 0;
    for (const TraitChange& change : setting.changes) {
      losses.Add(setting.trait->label, isRoot ? kDocument : kCombinations, change.paths.count,
                 {isRoot ? "" : tell(change.paths), change.before, change.after});
    }
  }
}

}  // namespace

List LossRows(const Comparison& comparison) {
  Losses losses;
  for (const FieldChange& change : comparison.header) {
    losses.Add(change.label, kDocument, 1, {"", change.before, change.after});
  }
  for (const PathComparison& paths : comparison.paths) AddPaths(comparison, paths, losses);
  for (const ListComparison& list : comparison.lists) AddEntries(list, losses);
  return losses.Rows();
}
