#pragma once

// The readers of the two sections that become trees. Nodes are added to those that the tree has: a
// new document has none. What they don't understand they skip with all that is under it: an element
// of another name, or one whose id list names no id of its level. They answer 0 for a null tree
// only: a document needn't have the section. When memory runs out bad_alloc passes through them.

#include "qdf/control/deferreddithers.h"
#include "qdf/core/qdfnode.h"
#include "qdf/support/aarrays.h"
#include "qdf/support/axmltree.h"

// Reads Control_Definition. The lists of records give the ids that count; the next four arguments
// take the names and the dither resolutions that the leaves of the tree refer to. The records of
// the last list are the caller's to delete, unless the last argument, which has begun the tree and
// refers to the same lists, takes the dithers.
int ReadControlDefinition(AXMLTree* tree, APtrArray& inkList, APtrArray& mediaList,
                          APtrArray& printModeList, APtrArray& resolutionList,
                          APtrArray& colorModeList, CQDFNode& root, AStringArray& profileList,
                          AStringArray& oemInfoList, AStringArray& ditherNameList,
                          APtrArray& ditherResolutionList,
                          DeferredDithers* deferredDithers = nullptr);

// Reads MediaSource_Control. A media source that names no known id gives a node without ids, which
// keeps what is under it.
int ReadMediaSourceControl(AXMLTree* tree, APtrArray& mediaSourceList, APtrArray& mediaSizeList,
                           APtrArray& marginInfoList, CQDFNode& root);
