#include "tool/compare/changes.h"

#include <algorithm>
#include <array>

#include "tool/compare/pathchanges.h"
#include "tool/reportline.h"

namespace {

enum Change { kKept, kRenumbered, kChanged, kNew, kGone, kChangeCount };

using Counts = std::array<int, kChangeCount>;

constexpr const char* kWords[kChangeCount] = {"kept", "renumbered", "changed", "new", "gone"};

Change ChangeOf(const EntryPair& entry) {
  if (entry.before == nullptr) return kNew;
  if (entry.after == nullptr) return kGone;
  if (!entry.changes.empty()) return kChanged;
  return IDOf(*entry.before) == IDOf(*entry.after) ? kKept : kRenumbered;
}

constexpr std::size_t kMostRows = 20;

// People see the beginning of a long list, and nothing of an empty one.
void AddRows(const char* key, const char* label, List rows, List forPeople, std::size_t most,
             Object& report) {
  const std::size_t left = forPeople.size() > most ? forPeople.size() - most : 0;
  forPeople.resize(forPeople.size() - left);
  report.Add({key, forPeople.empty() ? nullptr : label, std::move(rows), std::move(forPeople)});
  if (left > 0) report.Add({nullptr, "Left out", std::to_string(left) + " more, see --json"});
}

void AddRows(const char* key, const char* label, const List& rows, Object& report) {
  AddRows(key, label, rows, rows, kMostRows, report);
}

Value CellOf(const Object* row, const char* key) {
  const Value* value = row != nullptr ? row->Find(key) : nullptr;
  return value != nullptr ? *value : Value();
}

std::string Tell(const FieldChange& change) {
  const auto text = [](const Value& value) {
    const bool isNone = std::holds_alternative<std::monostate>(value.data);
    return isNone ? "none" : LineText(value);
  };
  const auto [before, after] = BriefChange(change.before, change.after);
  return change.part + (change.part.empty() ? "" : ", ") + change.label + ": " + text(before) +
         " becomes " + text(after);
}

std::string FirstOf(const std::vector<FieldChange>& changes) {
  constexpr std::size_t kMost = 2;
  std::string text;
  for (std::size_t i = 0; i < changes.size() && i < kMost; ++i) {
    text += (i > 0 ? "; " : "") + Tell(changes[i]);
  }
  return changes.size() > kMost ? text + "; " + std::to_string(changes.size() - kMost) + " more"
                                : text;
}

List FieldRows(const std::vector<FieldChange>& changes) {
  List rows;
  for (const FieldChange& change : changes) {
    rows.emplace_back(Object{{"part", nullptr, change.part},
                             {"field", "Field", change.key, change.label},
                             {"before", "Before", change.before},
                             {"after", "After", change.after}});
  }
  return rows;
}

Object EntryRow(const EntryPair& entry) {
  const Object* row = entry.after != nullptr ? entry.after : entry.before;
  const Value id = CellOf(entry.after, "id");
  const Value former = CellOf(entry.before, "id");
  const bool isRenumbered = entry.IsInBoth() && !(id == former);
  List fields = FieldRows(entry.changes);
  return {{"change", "Change", kWords[ChangeOf(entry)]},
          {"id", "ID", id, entry.after != nullptr ? id : former},
          {"formerId", "Formerly", former, isRenumbered ? former : Value("")},
          {"displayName", "Display name", CellOf(row, "displayName")},
          {"internalName", row->Find("internalName") != nullptr ? "Internal name" : nullptr,
           CellOf(row, "internalName")},
          {"fields", "What changed", std::move(fields), FirstOf(entry.changes)}};
}

// All media are shown in an overview, and what matters most first otherwise.
void AddEntries(const ListComparison& list, Shown shown, Object& report) {
  const bool isOverview = shown == Shown::kOverview;
  const bool isWhole = isOverview && list.list == &kDocumentLists[kMedia];
  List all;
  List changed[kChangeCount];
  List forPeople;
  for (const EntryPair& entry : list.entries) {
    const Change change = ChangeOf(entry);
    all.emplace_back(EntryRow(entry));
    if (isWhole || change != kKept) changed[isOverview ? kKept : change].push_back(all.back());
  }
  for (int i = kChangeCount; i-- > 0;) {
    forPeople.insert(forPeople.end(), changed[i].begin(), changed[i].end());
  }
  AddRows(list.list->key, list.list->label, std::move(all), std::move(forPeople),
          isWhole ? list.entries.size() : kMostRows, report);
}

Counts CountChanges(const ListComparison& list) {
  Counts counts{};
  for (const EntryPair& entry : list.entries) ++counts.at(ChangeOf(entry));
  return counts;
}

Object CountRow(const ListComparison& list, const Counts& counts) {
  return {{"list", "List", list.list->key, list.list->label},
          {"kept", "Kept", counts[kKept]},
          {"renumbered", "Renumbered", counts[kRenumbered]},
          {"changed", "Changed", counts[kChanged]},
          {"new", "New", counts[kNew]},
          {"gone", "Gone", counts[kGone]}};
}

Difference AddLists(const Comparison& comparison, Shown shown, Object& report) {
  List all;
  List changed;
  Difference difference = Difference::kNone;
  for (const ListComparison& list : comparison.lists) {
    const Counts counts = CountChanges(list);
    all.emplace_back(CountRow(list, counts));
    if (static_cast<std::size_t>(counts[kKept]) == list.entries.size()) continue;
    changed.push_back(all.back());
    const bool isSame = counts[kChanged] + counts[kNew] + counts[kGone] == 0;
    difference = std::max(difference, isSame ? Difference::kIDs : Difference::kMeaning);
  }
  if (shown == Shown::kOverview) changed = all;
  report.Add({"lists", changed.empty() ? nullptr : "Lists", std::move(all), std::move(changed)});
  for (const ListComparison& list : comparison.lists) AddEntries(list, shown, report);
  return difference;
}

Object OptionsForPrograms(const OptionSet& options, const std::vector<std::string>& names) {
  if (options.kind == OptionSet::kEvery) return {{"every", nullptr, true}};
  if (options.kind == OptionSet::kNone) return {{"none", nullptr, true}};
  List list;
  for (const int entry : options.entries) list.emplace_back(names[static_cast<std::size_t>(entry)]);
  return {{options.kind == OptionSet::kOnly ? "only" : "except", nullptr, std::move(list)}};
}

// The options of one level, or every one of them on levels that the line doesn't tell.
Field OptionsField(const FoldedPaths& line, std::size_t at, const PathLevel& level,
                   const std::vector<std::string>& names) {
  const OptionSet options = at < line.options.size() ? line.options[at] : OptionSet{};
  return {level.key, level.label, OptionsForPrograms(options, names), Tell(options, names)};
}

bool IsToldAt(std::size_t level, const std::vector<FoldedPaths>& lines) {
  return std::any_of(lines.begin(), lines.end(), [&](const FoldedPaths& line) {
    return level < line.options.size() && line.options[level].kind != OptionSet::kEvery;
  });
}

// By the names of the document that has the paths. People see no level where every line says
// "every", unless there is no other.
List PathRows(const std::vector<FoldedPaths>& lines, bool isFormer, const Comparison& comparison,
              const PathKind& kind) {
  std::vector<bool> isTold;
  for (std::size_t i = 0; i < kind.levels.size(); ++i) isTold.push_back(IsToldAt(i, lines));
  if (std::find(isTold.begin(), isTold.end(), true) == isTold.end()) isTold.front() = true;
  List rows;
  for (const FoldedPaths& line : lines) {
    Object row;
    for (std::size_t i = 0; i < kind.levels.size(); ++i) {
      const PathLevel& level = kind.levels[i];
      row.Add(OptionsField(line, i, level,
                           isFormer ? comparison.FormerNamesOf(level) : comparison.NamesOf(level)));
      if (!isTold[i]) row.fields.back().label = nullptr;
    }
    row.Add({"count", "How many", line.count});
    rows.emplace_back(std::move(row));
  }
  return rows;
}

// The labels of the tables for one kind of paths.
struct PathLabels {
  const char* counts;
  const char* lost;
  const char* won;
  const char* deadEndsGone;
  const char* deadEndsNew;
  const char* settings;
  const char* countsKey;
  const char* lostKey;
  const char* wonKey;
  const char* deadEndsGoneKey;
  const char* deadEndsNewKey;
  const char* settingsKey;
};

constexpr PathLabels kJobLabels = {"Combinations",
                                   "Groups of combinations lost",
                                   "Groups of combinations won",
                                   "Dead ends gone",
                                   "Dead ends new",
                                   "Settings of combinations",
                                   "combinations",
                                   "combinationsLost",
                                   "combinationsWon",
                                   "deadEndsGone",
                                   "deadEndsNew",
                                   "settings"};
constexpr PathLabels kMediaSourceLabels = {"Media source combinations",
                                           "Groups of media source combinations lost",
                                           "Groups of media source combinations won",
                                           "Dead ends of media sources gone",
                                           "Dead ends of media sources new",
                                           "Settings of media sources",
                                           "mediaSourceCombinations",
                                           "mediaSourceCombinationsLost",
                                           "mediaSourceCombinationsWon",
                                           "mediaSourceDeadEndsGone",
                                           "mediaSourceDeadEndsNew",
                                           "mediaSourceSettings"};

Object SettingRow(const TraitChanges& setting, const TraitChange& change,
                  const Comparison& comparison, const PathKind& kind) {
  const bool isRoot = setting.level == 0;
  auto [before, after] = BriefChange(change.before, change.after);
  Object row{{"setting", "Setting", setting.trait->key, setting.trait->label},
             {"before", "Before", change.before, std::move(before)},
             {"after", "After", change.after, std::move(after)},
             {nullptr, "For", isRoot ? "" : Tell(change.paths, comparison, kind)}};
  for (std::size_t i = 0; i < setting.level; ++i) {
    row.Add(OptionsField(change.paths, i, kind.levels[i], comparison.NamesOf(kind.levels[i])));
    row.fields.back().label = nullptr;
  }
  row.Add({"count", "How many", change.paths.count});
  return row;
}

// Where a setting changed, when the changes are too many to tell each.
void AddManySettingsRows(const TraitChanges& setting, const Comparison& comparison,
                         const PathKind& kind, List& rows) {
  constexpr std::size_t kMostPlaces = 5;
  const std::string changes = std::to_string(setting.changes.size()) + " different changes";
  const auto row = [&](const std::string& where, int count) {
    return Object{{nullptr, "Setting", setting.trait->label},
                  {nullptr, "Before", changes},
                  {nullptr, "After", ""},
                  {nullptr, "For", where},
                  {nullptr, "How many", count}};
  };
  if (setting.paths.size() > kMostPlaces) {
    const std::string places = std::to_string(setting.paths.size()) + " groups of them";
    rows.emplace_back(row(places, CountOf(setting.paths)));
    return;
  }
  for (const FoldedPaths& paths : setting.paths) {
    rows.emplace_back(row(Tell(paths, comparison, kind), paths.count));
  }
}

void AddSettings(const PathLabels& labels, const std::vector<TraitChanges>& settings,
                 const Comparison& comparison, const PathKind& kind, Object& report) {
  constexpr std::size_t kMostOfOneSetting = 5;
  List all;
  List forPeople;
  for (const TraitChanges& setting : settings) {
    const bool areMany = setting.changes.size() > kMostOfOneSetting;
    for (const TraitChange& change : setting.changes) {
      all.emplace_back(SettingRow(setting, change, comparison, kind));
      if (!areMany) forPeople.push_back(all.back());
    }
    if (areMany) AddManySettingsRows(setting, comparison, kind, forPeople);
  }
  AddRows(labels.settingsKey, labels.settings, std::move(all), std::move(forPeople), kMostRows,
          report);
}

Difference AddPaths(const Comparison& comparison, const PathComparison& paths, Shown shown,
                    Object& report) {
  const PathKind& kind = *paths.kind;
  const PathLabels& labels = kind.isJob ? kJobLabels : kMediaSourceLabels;
  if (!paths.root) {
    report.Add({labels.countsKey, labels.counts, {}, "too many to compare"});
    return Difference::kUnknown;
  }
  const PathChanges changes = FindPathChanges(paths);
  const bool isOverview = kind.isJob && shown == Shown::kOverview;
  const bool isShown = isOverview || !changes.lost.empty() || !changes.won.empty();
  report.Add({labels.countsKey, isShown ? labels.counts : nullptr,
              Object{{"before", "Before", changes.before},
                     {"after", "After", changes.after},
                     {"kept", "Kept", changes.kept},
                     {"lost", "Lost", CountOf(changes.lost)},
                     {"won", "Won", CountOf(changes.won)}}});
  AddRows(labels.lostKey, labels.lost, PathRows(changes.lost, true, comparison, kind), report);
  AddRows(labels.wonKey, labels.won, PathRows(changes.won, false, comparison, kind), report);
  AddRows(labels.deadEndsGoneKey, labels.deadEndsGone,
          PathRows(changes.deadEndsGone, true, comparison, kind), report);
  AddRows(labels.deadEndsNewKey, labels.deadEndsNew,
          PathRows(changes.deadEndsNew, false, comparison, kind), report);
  AddSettings(labels, changes.changed, comparison, kind, report);
  return changes.Any() ? Difference::kMeaning : Difference::kNone;
}

}  // namespace

Difference AddChanges(const Comparison& comparison, Shown shown, Object& report) {
  AddRows("header", "Header", FieldRows(comparison.header), report);
  Difference difference = comparison.header.empty() ? Difference::kNone : Difference::kMeaning;
  difference = std::max(difference, AddLists(comparison, shown, report));
  for (const PathComparison& paths : comparison.paths) {
    difference = std::max(difference, AddPaths(comparison, paths, shown, report));
  }
  return difference;
}
