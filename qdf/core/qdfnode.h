#pragma once

// The option tree. All options of one node, which are of one kind, have the same continuations:
// these are its children. Where continuations differ, the same id may occur in several nodes of a
// level, and each of them has its own subtree.
//
// The control tree: root, ink, media, print mode, resolution and colour mode nodes, and under each
// colour mode node the leaves ProfileNode, DitherNode and RipResolutionNode, in this order. A tree
// that was derived from HP resources has no RipResolutionNode and may have several pairs of the
// other two. The media source tree: root, media source, media size and margin nodes.

#include <cstdint>

#include "qdf/support/aarrays.h"
#include "qdf/support/export.h"

// The places of the leaves below a colour mode node.
enum ColorModeLeaf { kProfileLeaf = 0, kDitherLeaf = 1, kRipResolutionLeaf = 2 };

class APMQDF_EXPORT CQDFNode {
 public:
  CQDFNode() = default;
  ~CQDFNode();
  CQDFNode(const CQDFNode&) = delete;
  CQDFNode& operator=(const CQDFNode&) = delete;

  // A node may stand wherever the helpers below take an array of ids.
  operator ADWordArray&() { return IDs; }

  // Ids of the level's list, in document order and without duplicates. At a leaf: indices into the
  // document's list of profiles, dithers or dither resolutions. The root has none.
  ADWordArray IDs;

  // What is preselected one level down: an id, 0 when the document names none. At a colour mode
  // node the index of its printer specific text, at a ProfileNode or DitherNode that of the default
  // name; there -1 means none. Not tested against the children: it may name nothing.
  int Default = 0;

  // Of CQDFNode, in document order, owned by this node.
  APtrArray Children;
};

// The operations from here on are the library's own: they aren't exported.

// A new node with these ids and nothing else; the caller owns it until a parent does.
CQDFNode* MakeNodeFromIDs(ADWordArray& source);

// 1 when the id stands in the array, else 0.
int IsIDInArray(std::uint32_t id, ADWordArray& ids);

// Adds what the source has and the target lacks, in source order, at the target's end.
void MergeIDArray(ADWordArray& target, ADWordArray& source);

inline CQDFNode* ChildAt(const CQDFNode& node, int index) {
  return static_cast<CQDFNode*>(node.Children.GetAt(index));
}

// Makes an empty node the last child of the parent and answers it.
CQDFNode* AddChildNode(CQDFNode& parent);

// The same with a node that MakeNodeFromIDs made.
CQDFNode* AddChildNode(CQDFNode& parent, ADWordArray& ids);
