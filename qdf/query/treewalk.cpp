#include "qdf/query/treewalk.h"

#include "qdf/support/uniqueids.h"

namespace {

// A host that changes the media source tree may leave null pointers in it: they hold nothing.
bool Holds(CQDFNode* node, int id) {
  return node != nullptr && IsIDInArray(static_cast<std::uint32_t>(id), *node) != 0;
}

const CQDFNode* FindFrom(const CQDFNode& node, const int* id, const int* end,
                         const ChildIndexes* indexes) {
  if (id == end) return &node;
  int i = indexes != nullptr ? indexes->FirstHolding(node, static_cast<std::uint32_t>(*id)) : 0;
  for (; i < node.Children.GetSize(); ++i) {
    CQDFNode* child = ChildAt(node, i);
    if (!Holds(child, *id)) continue;
    const CQDFNode* found = FindFrom(*child, id + 1, end, indexes);
    if (found != nullptr) return found;
  }
  return nullptr;
}

}  // namespace

CQDFNode* FindChildWithID(const CQDFNode& parent, int id) {
  for (int i = 0; i < parent.Children.GetSize(); ++i) {
    CQDFNode* child = ChildAt(parent, i);
    if (Holds(child, id)) return child;
  }
  return nullptr;
}

const CQDFNode* FindPath(const CQDFNode& root, std::initializer_list<int> ids,
                         const ChildIndexes* indexes) {
  return FindFrom(root, ids.begin(), ids.end(), indexes);
}

ADWordArray MergedChildIDs(const CQDFNode& node) {
  ADWordArray merged;
  UniqueIDs unique(merged);
  for (int i = 0; i < node.Children.GetSize(); ++i) {
    if (const CQDFNode* child = ChildAt(node, i)) unique.AddAll(child->IDs);
  }
  return merged;
}
