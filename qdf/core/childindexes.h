#pragma once

// Finds children of a node by their ids where walking over them would take long.

#include <cstdint>
#include <unordered_map>

#include "qdf/core/qdfnode.h"
#include "qdf/support/hashindex.h"

// Of each node with many children, which child is the first to hold an id. It is made of a control
// tree that doesn't change any more but for the leaves below colour modes, which nobody looks for
// by id. Deeper levels than that of the colour modes are left to a walk.
class ChildIndexes {
 public:
  explicit ChildIndexes(const CQDFNode& root);

  // The first position at which a child may hold the id: 0 where a walk is as cheap as an index,
  // the number of children when none holds it.
  int FirstHolding(const CQDFNode& parent, std::uint32_t id) const;

 private:
  // The node, and those of so many levels below it.
  void Add(const CQDFNode& node, int levelsBelow);

  std::unordered_map<const CQDFNode*, HashIndex> indexes_;
};
