#pragma once

// GrowingTree finds a node's child by its ids without a walk over many children, while a tree
// grows.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "qdf/core/qdfnode.h"
#include "qdf/support/hashindex.h"

class GrowingTree {
 public:
  // Does what FindOrAddChild does, for parents to which nobody else gives children. A set of ids is
  // known again by its address: it neither changes nor goes while the tree grows.
  CQDFNode& FindOrAddChild(CQDFNode& parent, ADWordArray& ids);

 private:
  // The first child that holds the id, of a parent that isn't walked.
  struct Holder {
    const CQDFNode* parent;
    std::uint32_t id;
    int child;
  };
  // Where a large set of ids was found, and the state of the parent then.
  struct Found {
    const CQDFNode* parent;
    const ADWordArray* ids;
    CQDFNode* child;
    int state;
  };

  Found* FormerlyFound(const CQDFNode& parent, const ADWordArray& ids);
  void Remember(const CQDFNode& parent, const ADWordArray& ids, CQDFNode& child);
  // As long as it stays the same, a set that was found is found in the same child, which holds all
  // of it.
  int StateOf(const CQDFNode& parent) const;
  CQDFNode& FindOrAddByIndex(CQDFNode& parent, ADWordArray& ids);
  Holder* HolderOf(const CQDFNode& parent, std::uint32_t id);
  int FirstWithAny(const CQDFNode& parent, const ADWordArray& ids);
  // False when the child is its holder already.
  bool SetHolder(const CQDFNode& parent, std::uint32_t id, int child);
  // Makes the ids known of a parent whose children were walked until now.
  void IndexChildren(const CQDFNode& parent);

  std::vector<Holder> holders_;
  HashIndex holderIndex_;
  std::vector<Found> found_;
  HashIndex foundIndex_;
  int moves_ = 0;  // how often an id came to stand in an earlier child as well
};
