#pragma once

// UniqueIDs fills an id array so that no id stands in it twice, and knows what the array holds
// without walking it. While it is in use nobody else changes the array.

#include <cstdint>

#include "qdf/support/aarrays.h"
#include "qdf/support/hashindex.h"

class UniqueIDs {
 public:
  explicit UniqueIDs(ADWordArray& ids) : ids_(ids) {
    for (int i = 0; i < ids.GetSize(); ++i) index_.Add(ids.GetAt(i), i);
  }

  bool Holds(std::uint32_t id) const {
    return index_.Find(id, [](int) { return true; }) >= 0;
  }

  // Appends the id unless the array holds it.
  void Add(std::uint32_t id) {
    if (!Holds(id)) index_.Add(id, ids_.Add(id));
  }

  void AddAll(const ADWordArray& source) {
    for (int i = 0; i < source.GetSize(); ++i) Add(source.GetAt(i));
  }

 private:
  ADWordArray& ids_;
  HashIndex index_;
};
