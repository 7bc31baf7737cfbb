#pragma once

// One HP resource file becomes one record.

#include "qdf/hpimport/hpresource.h"
#include "qdf/hpimport/resourcename.h"
#include "qdf/support/afilepath.h"
#include "qdf/support/axmltree.h"
#include "qdf/support/descriptor.h"

// Loads the file into the tree; false when it can't be read or isn't well-formed XML. A lack of
// memory or descriptors throws bad_alloc, so that nobody takes a file for a bad one because of it.
bool LoadResourceTree(AXMLTree& tree, AFilePath& path);

// Appends the record of the file at the path, with these names in it; whoever holds the array frees
// it. Appends nothing when the file isn't there or LoadResourceTree fails.
void LoadHPResourceFile(AFilePath& path, APtrArray& records, AString mediaName, AString qualityName,
                        AString fileName);

// The same for a file in an open folder, however long its whole path is. What was wrong when the
// file can't be loaded, without a reason when it could.
AXMLFault LoadHPResourceFile(const Descriptor& folder, APtrArray& records,
                             const ResourceName& name);

// Fills the record from a loaded file; its QualityName must be set, for "superbest" has a rule of
// its own. Nothing is validated. 0 for a null tree, else 1.
int ParseHPResourceFile(AXMLTree* tree, HPResourceInfo* record);

// The whole bits that so many levels fill: their binary logarithm, rounded down, and 0 below 1.
int LevelsToDepth(int levels);
