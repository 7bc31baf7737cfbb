#pragma once

// The dithers of one colour mode, and the resolutions at which jobs are rasterised for them.

#include "qdf/control/nametable.h"
#include "qdf/core/qdfnode.h"
#include "qdf/support/aarrays.h"
#include "qdf/support/axmltree.h"

// One dither of one colour mode with its RIP resolution; a document owns its records.
struct DitherResolutionInfo {
  char Name[64];  // with a terminating zero only when the name is shorter
  double XResolution;
  double YResolution;
  CQDFNode* OwnerNode;  // the RipResolutionNode of the colour mode, not owned
};

// Reads a DitherList element into the two leaves of a colour mode. The default dither, trimmed,
// enters the name list and the DitherNode's Default. Dither names enter the DitherNode unless the
// list supports all dithers; a dither with two positive numbers gives a record, once for equal ones
// of this colour mode; a record that is there already enters the RipResolutionNode if it isn't yet
// in it.
void ReadDitherList(CQDFNode* ditherNode, CQDFNode* ripResolutionNode, AXMLTree* tree,
                    AXMLTreeNode& ditherList, AStringArray& ditherNameList,
                    APtrArray& ditherResolutionList, AString defaultDither);

// The same for new leaves, of which there are no records yet, with the table of the name list that
// the caller keeps over many lists.
void ReadDitherList(CQDFNode* ditherNode, CQDFNode* ripResolutionNode, AXMLTree* tree,
                    AXMLTreeNode& ditherList, NameTable& ditherNames,
                    APtrArray& ditherResolutionList, std::string_view defaultDither);
