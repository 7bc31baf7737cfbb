#include "tool/untranslated.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>

#include "qdf/localise/translationtable.h"
#include "qdf/support/text.h"
#include "tool/compare/entries.h"
#include "tool/ignoredlines.h"
#include "tool/lists.h"
#include "tool/reportline.h"

namespace {

std::string DisplayName(const Object& row) { return LineText(*row.Find("displayName")); }

struct Entry {
  std::size_t number;
  std::string part;  // what to say first of why it doesn't count
  std::string text;
  std::string key;
  std::string translation;
};

template <class Lines>
void SortByNumber(Lines& lines) {
  std::stable_sort(lines.begin(), lines.end(),
                   [](const auto& a, const auto& b) { return a.number < b.number; });
}

class Table {
 public:
  explicit Table(const std::string& file) {
    AFilePath path(file.c_str());
    ReadTranslationTable(path, [this](const TableLine& line) { Take(line); });
    SortByNumber(entries_);
    SortByNumber(ignored_);
  }

  const std::vector<Entry>& Entries() const { return entries_; }
  const std::vector<IgnoredLine>& Ignored() const { return ignored_; }
  bool Has(const std::string& name) const { return places_.count(name) != 0; }

 private:
  void Take(const TableLine& line) {
    const TextLine& text = line.Line;
    AddIgnored(text, line.Fault, ignored_);
    if (line.Fault != nullptr) return;
    Entry entry{text.Number, ReasonIn(text, ""), std::string(Trimmed(text.Text)),
                static_cast<const char*>(line.Pair.Key),
                static_cast<const char*>(line.Pair.Translation)};
    const auto [place, isFirst] = places_.emplace(entry.key, entries_.size());
    if (isFirst) {
      entries_.push_back(std::move(entry));
      return;
    }
    Entry& former = entries_[place->second];
    const std::string reason = "line " + std::to_string(text.Number) + " has the same key";
    ignored_.push_back({former.number, former.part + reason, former.text});
    former = std::move(entry);
  }

  std::vector<Entry> entries_;  // those that count
  std::vector<IgnoredLine> ignored_;
  std::unordered_map<std::string, std::size_t> places_;  // of the entries as they are read
};

// One row for each name of a list, with the ids of all entries that bear it.
List NamesWithoutEntry(const std::vector<ShownName>& names, const Table& table) {
  struct Group {
    const ShownName* name;
    List ids;
  };
  std::vector<Group> groups;
  std::map<std::pair<std::string, std::string>, std::size_t> places;
  for (const ShownName& each : names) {
    if (each.name.empty() || table.Has(each.name)) continue;
    const auto [place, isNew] = places.emplace(std::pair(each.key, each.name), groups.size());
    if (isNew) groups.push_back({&each, {}});
    groups[place->second].ids.emplace_back(each.id);
  }
  List rows;
  for (Group& group : groups) {
    rows.emplace_back(Object{{"list", "List", group.name->key, group.name->label},
                             {"displayName", "Display name", group.name->name},
                             {"ids", "IDs", std::move(group.ids)}});
  }
  return rows;
}

}  // namespace

std::vector<ShownName> ShownNames(APMQDF& document) {
  std::vector<ShownName> names;
  for (const DocumentList& list : kDocumentLists) {
    for (const Value& entry : list.rows(document)) {
      const Object& row = *AsObject(entry);
      names.push_back({list.key, list.label, IDOf(row), DisplayName(row)});
      const Value* colorants = row.Find("colorants");
      if (colorants == nullptr) continue;
      for (const Value& colorant : *AsList(*colorants)) {
        names.push_back({"colorants", "Colorants", IDOf(row), DisplayName(*AsObject(colorant))});
      }
    }
  }
  return names;
}

void AddUntranslated(APMQDF& document, const std::string& file, Object& report) {
  const std::vector<ShownName> names = ShownNames(document);
  const Table table(file);
  std::unordered_set<std::string_view> used;
  for (const ShownName& each : names) used.insert(each.name);
  List unused;
  for (const Entry& entry : table.Entries()) {
    if (used.count(entry.key) != 0) continue;
    unused.emplace_back(Object{{"line", "Line", static_cast<int>(entry.number)},
                               {"key", "Key", entry.key},
                               {"translation", "Translation", entry.translation}});
  }
  report.Add({"untranslated", "Names without an entry", NamesWithoutEntry(names, table)});
  report.Add({"unused", "Entries that no name uses", std::move(unused)});
  report.Add(IgnoredField("Lines that don't count", table.Ignored()));
}
