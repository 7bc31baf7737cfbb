#pragma once

// The dithers of one colour mode, and the resolutions at which jobs are rasterised for them.

#include <memory_resource>
#include <string_view>
#include <vector>

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

// Most of a document's records are of this kind. They lie in few large blocks, which go when this
// does: a call of the allocator for each would cost more than reading it.
class DitherResolutionBlocks {
 public:
  DitherResolutionInfo* Make() {
    return new (blocks_.allocate(sizeof(DitherResolutionInfo), alignof(DitherResolutionInfo)))
        DitherResolutionInfo();
  }

 private:
  std::pmr::monotonic_buffer_resource blocks_;
};

// Reads a DitherList element into the two leaves of a colour mode. The default dither, trimmed,
// enters the name list and the DitherNode's Default. Dither names enter the DitherNode unless the
// list supports all dithers; a dither with two positive numbers gives a record, once for equal ones
// of this colour mode; a record that is there already enters the RipResolutionNode if it isn't yet
// in it. New records are the caller's to delete.
void ReadDitherList(CQDFNode* ditherNode, CQDFNode* ripResolutionNode, AXMLTree* tree,
                    AXMLTreeNode& ditherList, AStringArray& ditherNameList,
                    APtrArray& ditherResolutionList, AString defaultDither);

// The same for all lists of one tree. It keeps what they have in common: the table of the name
// list, and the list before, since most lists of a document say the same. New records lie in the
// blocks; without blocks they are the caller's to delete.
class DitherListReader {
 public:
  DitherListReader(const AXMLTree& tree, AStringArray& ditherNameList,
                   APtrArray& ditherResolutionList, DitherResolutionBlocks* blocks);

  // Adds the DitherNode and the RipResolutionNode to the node of a ColorMode element and fills
  // them.
  void AddLeaves(CQDFNode& colorMode, const AXMLTreeNode& element);

  // Into leaves that may have been filled before.
  void ReadOnto(CQDFNode& ditherNode, CQDFNode& ripResolutionNode, const AXMLTreeNode& ditherList,
                std::string_view defaultDither);

 private:
  struct Dither {
    const char* name;
    const char* resolution;
  };
  // The texts are the tree's.
  struct List {
    bool supportsAll = false;
    std::vector<Dither> dithers;

    bool operator==(const List& other) const;
  };
  class OwnRecords;

  // Into new leaves, of which there are no records yet.
  void Read(CQDFNode& ditherNode, CQDFNode& ripResolutionNode, const AXMLTreeNode& ditherList,
            std::string_view defaultDither);
  void ReadTexts(const AXMLTreeNode& ditherList);
  void AddDithers(CQDFNode& ditherNode, OwnRecords& records);
  void RepeatFormer(CQDFNode& ditherNode, CQDFNode& ripResolutionNode);
  DitherResolutionInfo* AddRecord();

  const AXMLTree& tree_;
  NameTable names_;
  APtrArray& records_;
  DitherResolutionBlocks* blocks_;
  List list_;
  List formerList_;
  CQDFNode* formerDitherNode_ = nullptr;
  CQDFNode* formerRipResolutionNode_ = nullptr;
};
