#pragma once

// Loops over what is no range by itself.

#include "qdf/support/aarrays.h"
#include "qdf/support/axmltree.h"

// Calls `visit` with each record of an array of them, in order.
template <class Record, class Visit>
void ForEachRecord(const APtrArray& records, Visit visit) {
  const int count = records.GetSize();
  for (int i = 0; i < count; ++i) visit(*static_cast<const Record*>(records.GetAt(i)));
}

// Calls `visit` with each child element of that name, in order.
template <class Visit>
void ForEachChild(const AXMLTree& tree, const AXMLTreeNode& parent, const char* name, Visit visit) {
  AXMLTreeNode child;
  if (tree.getChild(name, parent, child) == 0) return;
  do {
    visit(child);
  } while (tree.getNext(name, child) != 0);
}
