#pragma once

// How queries answer: records of a document's list, copied behind what the caller's vector holds.

#include <vector>

#include "qdf/query/treewalk.h"
#include "qdf/support/aarrays.h"
#include "qdf/support/uniqueids.h"

// Appends a copy of each record for which `wanted` answers true, in list order, and answers 1 when
// the vector then holds anything. `wanted` is asked just before the record goes in. When memory
// runs out the vector is as it was, and bad_alloc goes on to the query.
template <class Record, class Wanted>
int AppendRecords(const APtrArray& list, std::vector<Record>& records, Wanted wanted) {
  const auto former = static_cast<std::ptrdiff_t>(records.size());
  try {
    for (int i = 0; i < list.GetSize(); ++i) {
      const auto& record = *static_cast<const Record*>(list.GetAt(i));
      if (wanted(record)) records.push_back(record);
    }
  } catch (...) {
    records.erase(records.begin() + former, records.end());
    throw;
  }
  return records.empty() ? 0 : 1;
}

template <class Record>
int AppendAll(const APtrArray& list, std::vector<Record>& records) {
  return AppendRecords(list, records, [](const Record&) { return true; });
}

// Appends the records whose id is among the given ones. The default position, 0 on entry, becomes
// that at which the record with the default id is appended, once all are.
template <class Record>
int AppendAllowed(const APtrArray& list, ADWordArray allowedIDs, int defaultID,
                  std::vector<Record>& records, int& defaultPosition) {
  const UniqueIDs allowed(allowedIDs);
  int position = 0;
  const int result = AppendRecords(list, records, [&](const Record& record) {
    if (!allowed.Holds(static_cast<std::uint32_t>(record.ID))) return false;
    if (record.ID == defaultID) position = static_cast<int>(records.size());
    return true;
  });
  defaultPosition = position;
  return result;
}

// The options of a level: the records whose ids stand in nodes below this one, which names the
// default. Without a node there are none. The default position is 0 on entry.
template <class Record>
int AppendOptions(const CQDFNode* node, const APtrArray& list, std::vector<Record>& records,
                  int& defaultPosition) {
  if (node == nullptr) return 0;
  return AppendAllowed(list, MergedChildIDs(*node), node->Default, records, defaultPosition);
}
