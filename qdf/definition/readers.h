#pragma once

// The readers of the Definition section. Each goes through the entries of its list in document
// order, whatever their element names, and appends a new record to the list, which owns it from
// then on. A value that an entry lacks is 0 or empty; a name is cut at its field. The first record
// with an id stands: an entry whose id the list holds already is dropped. They answer 0 when the
// list is empty afterwards or the tree null, else 1. When memory runs out bad_alloc passes through
// them.

#include "qdf/support/aarrays.h"
#include "qdf/support/axmltree.h"

int ReadInkList(AXMLTree* tree, APtrArray& list);
// Sorts the list: see SortMedia.
int ReadMediaList(AXMLTree* tree, APtrArray& list);
int ReadPrintModeList(AXMLTree* tree, APtrArray& list);
int ReadResolutionList(AXMLTree* tree, APtrArray& list);
// A colour mode without a colorant is dropped.
int ReadColorModeList(AXMLTree* tree, APtrArray& list);
int ReadMediaSizeList(AXMLTree* tree, APtrArray& list);
int ReadMarginInfoList(AXMLTree* tree, APtrArray& list);
int ReadMediaSourceList(AXMLTree* tree, APtrArray& list);

// Finds a child of Definition by name; non-zero when it is there.
int FindInDefinition(AXMLTree* tree, const char* name, AXMLTreeNode& child);
