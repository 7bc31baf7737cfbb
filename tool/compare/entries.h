#pragma once

// The entries of a list of one document beside those of another, by what they mean.

#include <string>
#include <vector>

#include "tool/report.h"

struct FieldChange {
  std::string part;  // the name of an entry's colorant; empty when the field is the entry's own
  const char* key;
  const char* label;
  Value before;  // without a value where one of the two has no such colorant
  Value after;
};

// One entry, in at least one of the two documents.
struct EntryPair {
  const Object* before = nullptr;  // null when it is new
  const Object* after = nullptr;   // null when it is gone
  std::string name{};              // by which people tell it from all others of its list
  std::string formerName{};        // the same, where the two documents name it differently
  std::vector<FieldChange> changes{};

  bool IsInBoth() const { return before != nullptr && after != nullptr; }
};

// Pairs entries that agree in both names; of those that are left such with one internal name, then
// such with one display name, and last resolutions of the same numbers; each time in the order of
// the lists. The result has the entries of `after` in their order and then those that are gone. It
// points into the lists.
std::vector<EntryPair> PairEntries(const List& before, const List& after);

// The fields that differ, of those that people see. An id isn't looked at: it is no part of what an
// entry means. Nor is the unlocalized name, which of a document as it is loaded is the display
// name.
std::vector<FieldChange> CompareFields(const Object& before, const Object& after);

// 0 for a row without an id.
int IDOf(const Object& row);
