#pragma once

// The search for HP resources in a folder tree.

#include "qdf/hpimport/hpresource.h"

// Does what PMGetHPRecursive does. False when somebody moved a folder while the search was inside,
// and what lies behind it wasn't found. A lack of memory or descriptors throws bad_alloc.
[[nodiscard]] bool CollectHPResources(const AString& folder, APtrArray& records);
