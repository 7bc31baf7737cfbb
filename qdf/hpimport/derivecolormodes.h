#pragma once

// The colour modes of a document, derived from HPResourceInfo records: HP resources name an ink
// layout and two depths, and from these come a colour mode and a grey mode beside it. When memory
// runs out, bad_alloc passes through, and what was appended stays.

#include "qdf/hpimport/hpresource.h"
#include "qdf/support/aarrays.h"

// Appends ColorModeInfo records, numbered from 1 by first appearance; the list owns them. A mode is
// told apart by its name and the depth of its first colorant alone. A resource of an unknown ink
// layout gives none. 0 without resources, else 1 exactly when the list holds a record.
int DeriveColorModeList(APtrArray& resources, APtrArray& colorModeList);

// Whether a resource with that InputFormat gives colour modes.
bool IsKnownInkLayout(const AString& inputFormat);

// Appends the ids of the modes that belong to the resource, in list order: those of its layout in
// which "Cyan" has its colour depth, and the grey modes of its black depth.
void CollectColorModeIDs(const HPResourceInfo& resource, const APtrArray& colorModeList,
                         ADWordArray& ids);
