#include "qdf/core/childindexes.h"

#include "qdf/support/idset.h"

namespace {

constexpr int kMany = 64;

// Inks, media, print modes and resolutions: the nodes below which somebody looks for an id.
constexpr int kParentLevels = 4;

void IndexChildren(const CQDFNode& parent, HashIndex& index) {
  IDSet seen;
  for (int i = 0; i < parent.Children.GetSize(); ++i) {
    const CQDFNode* child = ChildAt(parent, i);
    if (child == nullptr) continue;
    for (const std::uint32_t id : child->IDs) {
      if (seen.Add(id)) index.Add(id, i);
    }
  }
}

}  // namespace

ChildIndexes::ChildIndexes(const CQDFNode& root) { Add(root, kParentLevels); }

void ChildIndexes::Add(const CQDFNode& node, int levelsBelow) {
  const int count = node.Children.GetSize();
  if (count >= kMany) IndexChildren(node, indexes_[&node]);
  for (int i = 0; i < count && levelsBelow > 0; ++i) {
    if (const CQDFNode* child = ChildAt(node, i)) Add(*child, levelsBelow - 1);
  }
}

int ChildIndexes::FirstHolding(const CQDFNode& parent, std::uint32_t id) const {
  const int count = parent.Children.GetSize();
  if (count < kMany) return 0;
  const auto found = indexes_.find(&parent);
  if (found == indexes_.end()) return 0;
  const int first = found->second.Find(id, [](int) { return true; });
  return first >= 0 ? first : count;
}
