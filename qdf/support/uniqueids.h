#pragma once

// UniqueIDs fills an id array so that no id stands in it twice, and knows what the array holds
// without walking it. While it is in use nobody else changes the array.

#include <cstdint>

#include "qdf/support/aarrays.h"
#include "qdf/support/idset.h"

class UniqueIDs {
 public:
  explicit UniqueIDs(ADWordArray& ids) : ids_(ids) {
    for (const std::uint32_t id : ids) known_.Add(id);
  }

  bool Holds(std::uint32_t id) const { return known_.Holds(id); }

  // Appends the id unless the array holds it.
  void Add(std::uint32_t id) {
    if (known_.Add(id)) ids_.Add(id);
  }

  void AddAll(const ADWordArray& source) {
    for (int i = 0; i < source.GetSize(); ++i) Add(source.GetAt(i));
  }

 private:
  ADWordArray& ids_;
  IDSet known_;
};
