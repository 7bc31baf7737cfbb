#include "qdf/query/treewalk.h"

#include "qdf/support/uniqueids.h"

namespace {

bool Holds(CQDFNode& node, int id) {
  return IsIDInArray(static_cast<std::uint32_t>(id), node) != 0;
}

const CQDFNode* FindFrom(const CQDFNode& node, const int* id, const int* end) {
  if (id == end) return &node;
  for (int i = 0; i < node.Children.GetSize(); ++i) {
    CQDFNode& child = *ChildAt(node, i);
    if (!Holds(child, *id)) continue;
    const CQDFNode* found = FindFrom(child, id + 1, end);
    if (found != nullptr) return found;
  }
  return nullptr;
}

}  // namespace

CQDFNode* FindChildWithID(const CQDFNode& parent, int id) {
  for (int i = 0; i < parent.Children.GetSize(); ++i) {
    CQDFNode* child = ChildAt(parent, i);
    if (Holds(*child, id)) return child;
  }
  return nullptr;
}

const CQDFNode* FindPath(const CQDFNode& root, std::initializer_list<int> ids) {
  return FindFrom(root, ids.begin(), ids.end());
}

ADWordArray MergedChildIDs(const CQDFNode& node) {
  ADWordArray merged;
  UniqueIDs unique(merged);
  for (int i = 0; i < node.Children.GetSize(); ++i) unique.AddAll(ChildAt(node, i)->IDs);
  return merged;
}
