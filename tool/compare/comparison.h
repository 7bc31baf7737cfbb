#pragma once

// Two documents side by side, by what they mean: entries by their names, combinations by entries.

#include <optional>
#include <string>
#include <vector>

#include "tool/compare/entries.h"
#include "tool/compare/paths.h"

struct ListComparison {
  const DocumentList* list;
  List before;
  List after;
  std::vector<EntryPair> entries;  // into both
  std::vector<std::string> names;  // of the entries
  std::vector<std::string> formerNames;
};

// A path of at least one of the two documents.
struct PathPair {
  int entry = -1;
  const PathNode* before = nullptr;  // null when it is new
  const PathNode* after = nullptr;   // null when it is gone
  std::vector<PathPair> children{};

  bool IsInBoth() const { return before != nullptr && after != nullptr; }
};

struct PathComparison {
  const PathKind* kind;
  PathNode before;
  PathNode after;
  std::optional<PathPair> root;  // into both; none when there are too many paths to compare
};

class Comparison {
 public:
  Comparison(APMQDF& before, APMQDF& after);
  Comparison(const Comparison&) = delete;
  Comparison& operator=(const Comparison&) = delete;

  std::vector<FieldChange> header;
  std::vector<ListComparison> lists;  // in the order of kDocumentLists
  std::vector<PathComparison> paths;  // in the order of kPathKinds

  const std::vector<std::string>& NamesOf(const PathLevel& level) const {
    return lists[level.list].names;
  }
  const std::vector<std::string>& FormerNamesOf(const PathLevel& level) const {
    return lists[level.list].formerNames;
  }

 private:
  void ComparePaths(APMQDF& before, APMQDF& after, PathComparison& comparison);
};
