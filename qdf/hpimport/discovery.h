#pragma once

// The search for HP resources in a folder tree.

#include <vector>

#include "qdf/hpimport/hpresource.h"
#include "qdf/support/axmltree.h"

// What the search could not look into.
struct PassedOver {
  AString path;
  bool isFolder = false;  // that can't be searched, and else a resource file
  AXMLFault fault;        // of the file
};

// Does what PMGetHPRecursive does, and appends to `passedOver` what it passed over, in the order of
// the search. False when somebody moved a folder while the search was inside, and what lies behind
// it wasn't found. A lack of memory or descriptors, or a path that is too long, throws bad_alloc.
[[nodiscard]] bool CollectHPResources(const AString& folder, APtrArray& records,
                                      std::vector<PassedOver>& passedOver);
