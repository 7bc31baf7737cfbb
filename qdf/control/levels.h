#pragma once

// What the readers of both trees share at every level.

#include "qdf/control/idlist.h"
#include "qdf/support/aarrays.h"
#include "qdf/support/axmltree.h"
#include "qdf/support/numbers.h"

template <class Record>
LevelIDs IDsOf(const APtrArray& records) {
  ADWordArray ids;
  for (int i = 0; i < records.GetSize(); ++i) {
    ids.Add(static_cast<std::uint32_t>(static_cast<Record*>(records.GetAt(i))->ID));
  }
  return LevelIDs(ids);
}

// The ids that an attribute names, none when it is missing.
inline ADWordArray ReadIDs(const AXMLTree& tree, const AXMLTreeNode& element, const char* attribute,
                           const LevelIDs& level) {
  ADWordArray ids;
  ParseIDList(tree.attributeText(element, attribute), level, ids);
  return ids;
}

// A default that an attribute names, 0 when it is missing or empty. It may name nothing that
// exists.
inline int ReadDefault(const AXMLTree& tree, const AXMLTreeNode& element, const char* attribute) {
  return ReadInt(tree.attributeText(element, attribute));
}
