#include "tool/untranslated.h"

#include <map>
#include <unordered_map>
#include <unordered_set>

#include "qdf/localise/translationtable.h"
#include "qdf/support/text.h"
#include "tool/compare/entries.h"
#include "tool/lists.h"
#include "tool/reportline.h"

namespace {

std::string DisplayName(const Object& row) { return LineText(*row.Find("displayName")); }

struct Line {
  std::size_t number;
  std::string text;
  std::string fault;
  std::string key;
  std::string translation;
};

class Table {
 public:
  explicit Table(const std::string& file) {
    AFilePath path(file.c_str());
    ReadTranslationTable(path, [this](const TableLine& line) { Take(line); });
  }

  const std::vector<Line>& Lines() const { return lines_; }
  bool Has(const std::string& name) const { return byKey_.count(name) != 0; }

 private:
  void Take(const TableLine& line) {
    const std::string text(Trimmed(line.Text));
    const bool isRest = !lines_.empty() && lines_.back().number == line.Number;
    if (text.empty()) return;
    Line taken{line.Number, text, line.Fault != nullptr ? line.Fault : "",
               static_cast<const char*>(line.Pair.Key),
               static_cast<const char*>(line.Pair.Translation)};
    if (isRest && line.Fault != nullptr) {
      taken.fault = "the rest of a line of more than 1,023 characters: " + taken.fault;
    }
    if (line.Fault == nullptr) {
      const auto [former, isFirst] = byKey_.emplace(taken.key, lines_.size());
      if (!isFirst) {
        lines_[former->second].fault = "line " + std::to_string(line.Number) + " has the same key";
        former->second = lines_.size();
      }
    }
    lines_.push_back(std::move(taken));
  }

  std::vector<Line> lines_;  // but for empty ones
  std::unordered_map<std::string, std::size_t> byKey_;
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

Value LineNumber(const Line& line) { return static_cast<int>(line.number); }

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
  List ignored;
  for (const Line& line : table.Lines()) {
    if (!line.fault.empty()) {
      ignored.emplace_back(Object{{"line", "Line", LineNumber(line)},
                                  {"reason", "Why", line.fault},
                                  {"text", "Text", line.text}});
    } else if (used.count(line.key) == 0) {
      unused.emplace_back(Object{{"line", "Line", LineNumber(line)},
                                 {"key", "Key", line.key},
                                 {"translation", "Translation", line.translation}});
    }
  }
  report.Add({"untranslated", "Names without an entry", NamesWithoutEntry(names, table)});
  report.Add({"unused", "Entries that no name uses", std::move(unused)});
  report.Add({"ignored", "Lines that don't count", std::move(ignored)});
}
