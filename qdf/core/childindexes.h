#pragma once

// Finds children of a node by their ids where walking over them would take long.

#include <cstdint>
#include <unordered_map>

#include "qdf/core/qdfnode.h"
#include "qdf/support/hashindex.h"

// Of each node with many children that a search came through, which child is the first to hold an
// id. It is made when it is first needed, and only for a tree that doesn't change any more.
class ChildIndexes {
 public:
  // The first position at which a child may hold the id: 0 where a walk is as cheap as an index,
  // the number of children when none holds it.
  int FirstHolding(const CQDFNode& parent, std::uint32_t id);

 private:
  std::unordered_map<const CQDFNode*, HashIndex> indexes_;
};
