#pragma once

// The control tree of a document, derived from HPResourceInfo records: each resource stands for one
// path, from its media down to its colour modes, with a profile and a dither for it. When memory
// runs out, bad_alloc passes through, and the tree and the names stay as far as they have grown.

#include "qdf/core/qdfnode.h"
#include "qdf/support/aarrays.h"
#include "qdf/support/astring.h"

// Grows the tree under a root without children, from lists that are complete, and appends the names
// that its nodes refer to. All media hang below one node for the first ink. A resource whose parts
// the lists don't hold makes nodes without ids, which no query can reach. Each resource appends a
// pair of leaves, profile and dither, to its colour mode node; of several pairs the first counts.
// 0, and nothing changed, without resources or without an ink; else 1.
int DeriveControlTree(APtrArray& resources, APtrArray& inkList, APtrArray& mediaList,
                      APtrArray& printModeList, APtrArray& resolutionList, APtrArray& colorModeList,
                      CQDFNode* root, AStringArray& iccProfiles, AStringArray& oemInfos,
                      AStringArray& ditherNames);

// The steps of the derivation, each by itself and as plainly as it can be said. DeriveControlTree
// takes quicker ways to the same results where there is much, which fuzz targets compare with
// these.

// The first child, in order, that has an id in common with `ids`; it takes over the others of them.
// Without one a new child with these ids.
CQDFNode* FindOrAddChild(CQDFNode* parent, ADWordArray& ids);

// 1 when an id stands in both arrays, else 0.
int IDArraysOverlap(const ADWordArray& a, const ADWordArray& b);

// The id of the first MediaTypeInfo or PrintModeInfo in the list with that display name, compared
// with case; 1 when there is none.
int FindIDByDisplayName(AString name, APtrArray& list);

// Appends the id of each media with that internal name, compared with case, in list order.
void CollectMediaIDs(AString name, APtrArray& mediaList, ADWordArray& ids);
