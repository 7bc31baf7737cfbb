#include "tool/compare/changes.h"

#include <algorithm>
#include <array>

#include "tool/compare/pathchanges.h"
#include "tool/reportline.h"

namespace {

enum Change { kKept, kRenumbered, kChanged, kNew, kGone, kChangeCount };

constexpr const char* kWords[kChangeCount] = {"kept", "renumbered", "changed", "new", "gone"};

Change ChangeOf(const EntryPair& entry) {
  if (entry.before == nullptr) return kNew;
  if (entry.after == nullptr) return kGone;
  if (!entry.changes.empty()) return kChanged;
  return IDOf(*entry.before) == IDOf(*entry.after) ? kKept : kRenumbered;
}

// People see the beginning of a long list, and nothing of an empty one.
void AddRows(const char* key, const char* label, List rows, List forPeople, Object& report) {
  constexpr std::size_t kMost = 20;
  const std::size_t left = forPeople.size() > kMost ? forPeople.size() - kMost : 0;
  forPeople.resize(forPeople.size() - left);
  report.Add({key, forPeople.empty() ? nullptr : label, std::move(rows), std::move(forPeople)});
  if (left > 0) report.Add({nullptr, "Left out", std::to_string(left) + " more, see --json"});
}

void AddRows(const char* key, const char* label, const List& rows, Object& report) {
  AddRows(key, label, rows, rows, report);
}

Value CellOf(const Object* row, const char* key) {
  const Value* value = row != nullptr ? row->Find(key) : nullptr;
  return value != nullptr ? *value : Value();
}

std::string Tell(const FieldChange& change) {
  const auto text = [](const Value& value) {
    const bool isNone = std::holds_alternative<std::monostate>(value.data);
    return isNone ? "none" : LineText(Brief(value));
  };
  return change.part + (change.part.empty() ? "" : ", ") + change.label + ": " +
         text(change.before) + " becomes " + text(change.after);
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
          {"internalName", "Internal name", CellOf(row, "internalName")},
          {"fields", "What changed", std::move(fields), FirstOf(entry.changes)}};
}

// All media are shown, since hosts keep their ids.
void AddEntries(const ListComparison& list, Object& report) {
  const bool isMedia = list.list == &kDocumentLists[kMedia];
  List all;
  List shown;
  for (const EntryPair& entry : list.entries) {
    all.emplace_back(EntryRow(entry));
    if (isMedia || ChangeOf(entry) != kKept) shown.push_back(all.back());
  }
  const char* label = shown.empty() ? nullptr : list.list->label;
  report.Add({list.list->key, label, std::move(all), std::move(shown)});
}

Object CountRow(const ListComparison& list) {
  std::array<int, kChangeCount> counts{};
  for (const EntryPair& entry : list.entries) ++counts.at(ChangeOf(entry));
  return {{"list", "List", list.list->key, list.list->label},
          {"kept", "Kept", counts[kKept]},
          {"renumbered", "Renumbered", counts[kRenumbered]},
          {"changed", "Changed", counts[kChanged]},
          {"new", "New", counts[kNew]},
          {"gone", "Gone", counts[kGone]}};
}

Object OptionsForPrograms(const OptionSet& options, const std::vector<std::string>& names) {
  if (options.kind == OptionSet::kEvery) return {{"every", nullptr, true}};
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

// By the names of the document that has the paths.
List PathRows(const std::vector<FoldedPaths>& lines, bool isFormer, const Comparison& comparison,
              const PathKind& kind) {
  List rows;
  for (const FoldedPaths& line : lines) {
    Object row;
    for (std::size_t i = 0; i < kind.levels.size(); ++i) {
      const PathLevel& level = kind.levels[i];
      row.Add(OptionsField(line, i, level,
                           isFormer ? comparison.FormerNamesOf(level) : comparison.NamesOf(level)));
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
  const char* settings;
  const char* countsKey;
  const char* lostKey;
  const char* wonKey;
  const char* settingsKey;
};

constexpr PathLabels kJobLabels = {"Combinations",
                                   "Groups of combinations lost",
                                   "Groups of combinations won",
                                   "Settings of combinations",
                                   "combinations",
                                   "combinationsLost",
                                   "combinationsWon",
                                   "settings"};
constexpr PathLabels kMediaSourceLabels = {"Media source combinations",
                                           "Groups of media source combinations lost",
                                           "Groups of media source combinations won",
                                           "Settings of media sources",
                                           "mediaSourceCombinations",
                                           "mediaSourceCombinationsLost",
                                           "mediaSourceCombinationsWon",
                                           "mediaSourceSettings"};

Object SettingRow(const TraitChange& change, const Comparison& comparison, const PathKind& kind) {
  const std::string where = Tell(change.paths, comparison, kind);
  Object row{{"setting", "Setting", change.trait->key, change.trait->label},
             {"before", "Before", change.before, Brief(change.before)},
             {"after", "After", change.after, Brief(change.after)},
             {nullptr, "For", where.empty() && change.level > 0 ? "all of them" : where}};
  for (std::size_t i = 0; i < change.level; ++i) {
    row.Add(OptionsField(change.paths, i, kind.levels[i], comparison.NamesOf(kind.levels[i])));
    row.fields.back().label = nullptr;
  }
  row.Add({"count", "How many", change.paths.count});
  return row;
}

// So many changes of one setting, when they are too many to tell each.
Object ManySettingsRow(const Trait& trait, std::size_t changes, int paths) {
  return {{nullptr, "Setting", trait.label},
          {nullptr, "Before", std::to_string(changes) + " different changes"},
          {nullptr, "After", ""},
          {nullptr, "For", ""},
          {nullptr, "How many", paths}};
}

void AddSettings(const PathLabels& labels, const std::vector<TraitChange>& changes,
                 const Comparison& comparison, const PathKind& kind, Object& report) {
  constexpr std::size_t kMostOfOneSetting = 5;
  List all;
  List forPeople;
  for (auto begin = changes.begin(); begin != changes.end();) {
    const auto end = std::find_if(begin, changes.end(), [&](const TraitChange& change) {
      return change.trait != begin->trait;
    });
    List rows;
    int paths = 0;
    for (auto change = begin; change != end; ++change) {
      rows.emplace_back(SettingRow(*change, comparison, kind));
      paths += change->paths.count;
    }
    all.insert(all.end(), rows.begin(), rows.end());
    if (rows.size() > kMostOfOneSetting) {
      rows = {ManySettingsRow(*begin->trait, rows.size(), paths)};
    }
    forPeople.insert(forPeople.end(), rows.begin(), rows.end());
    begin = end;
  }
  AddRows(labels.settingsKey, labels.settings, std::move(all), std::move(forPeople), report);
}

void AddPaths(const Comparison& comparison, const PathComparison& paths, Object& report) {
  const PathKind& kind = *paths.kind;
  const PathLabels& labels = kind.isJob ? kJobLabels : kMediaSourceLabels;
  if (!paths.root) {
    report.Add({labels.countsKey, labels.counts, {}, "too many to compare"});
    return;
  }
  const PathChanges changes = FindPathChanges(paths);
  const bool isSame = changes.lost.empty() && changes.won.empty() && changes.changed.empty();
  report.Add({labels.countsKey, isSame && !kind.isJob ? nullptr : labels.counts,
              Object{{"before", "Before", changes.before},
                     {"after", "After", changes.after},
                     {"kept", "Kept", changes.kept},
                     {"lost", "Lost", CountOf(changes.lost)},
                     {"won", "Won", CountOf(changes.won)}}});
  AddRows(labels.lostKey, labels.lost, PathRows(changes.lost, true, comparison, kind), report);
  AddRows(labels.wonKey, labels.won, PathRows(changes.won, false, comparison, kind), report);
  AddSettings(labels, changes.changed, comparison, kind, report);
}

}  // namespace

void AddChanges(const Comparison& comparison, Object& report) {
  AddRows("header", "Header", FieldRows(comparison.header), report);
  List counts;
  for (const ListComparison& list : comparison.lists) counts.emplace_back(CountRow(list));
  report.Add({"lists", "Lists", std::move(counts)});
  for (const ListComparison& list : comparison.lists) AddEntries(list, report);
  for (const PathComparison& paths : comparison.paths) AddPaths(comparison, paths, report);
}
