#pragma once

// The dithers of a document that was loaded from a file are most of what stands in it, and a job
// asks for those of one colour mode. So they are put off: their elements stay in the tree of the
// file, and are read when the colour mode is first asked for. Until then its node has no leaf but
// the ProfileNode.

#include <memory>
#include <optional>
#include <vector>

#include "qdf/control/ditherlist.h"
#include "qdf/core/qdfnode.h"
#include "qdf/support/aarrays.h"
#include "qdf/support/axmltree.h"
#include "qdf/support/hashindex.h"

class DeferredDithers {
 public:
  // The lists that the leaves refer to. The records of the second go when this does.
  DeferredDithers(AStringArray& ditherNameList, APtrArray& ditherResolutionList);

  // What is put here from now on stands in this tree. What stands in a former one is read first.
  void BeginTree(const AXMLTree& tree);
  // The same with a tree that this keeps. To begin it once more changes nothing.
  void BeginTree(std::unique_ptr<AXMLTree> tree);

  // A kept tree of which nothing is put off is let go.
  void EndTree();

  // The node of a ColorMode element: put off when the tree is kept, else read now.
  void Put(CQDFNode& colorMode, const AXMLTreeNode& element);

  // Gives the colour mode node its two other leaves, unless it has them. With the last of them the
  // tree is let go. When memory runs out bad_alloc passes through and the node is as it was: it can
  // be asked again.
  void Read(const CQDFNode& colorMode);

  // The same for all nodes in the order of the document. The tree is then let go.
  void ReadAll();

 private:
  struct Entry {
    CQDFNode* colorMode;  // null once it is read
    AXMLTreeNode element;
  };

  void ReadNow(Entry& entry);
  void Read(CQDFNode& colorMode, const AXMLTreeNode& element);

  AStringArray& names_;
  APtrArray& records_;
  DitherResolutionBlocks blocks_;
  std::unique_ptr<AXMLTree> ownTree_;
  std::optional<DitherListReader> reader_;
  std::vector<Entry> entries_;
  std::size_t unread_ = 0;  // of the entries
  HashIndex index_;         // of the entries, by their nodes
};
