#pragma once

// A set of ids that is never walked, for arrays and lists that keep the order themselves.

#include <cstdint>

#include "qdf/support/hashindex.h"

class IDSet {
 public:
  bool Holds(std::uint32_t id) const {
    return index_.Find(id, [](int) { return true; }) >= 0;
  }

  // False when the set holds the id already.
  bool Add(std::uint32_t id) {
    // Most ids come in ascending order, and need no search.
    if (id < next_ && Holds(id)) return false;
    index_.Add(id, 0);
    if (id >= next_) next_ = std::uint64_t{id} + 1;
    return true;
  }

 private:
  HashIndex index_;
  std::uint64_t next_ = 0;  // beyond all ids in the set
};
