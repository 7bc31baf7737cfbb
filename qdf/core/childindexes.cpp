#include "qdf/core/childindexes.h"

#include <utility>

#include "qdf/support/idset.h"

namespace {

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

int ChildIndexes::FirstHolding(const CQDFNode& parent, std::uint32_t id) {
  constexpr int kMany = 64;
  const int count = parent.Children.GetSize();
  if (count < kMany) return 0;
  auto found = indexes_.find(&parent);
  if (found == indexes_.end()) {
    HashIndex index;
    IndexChildren(parent, index);
    found = indexes_.emplace(&parent, std::move(index)).first;
  }
  const int first = found->second.Find(id, [](int) { return true; });
  return first >= 0 ? first : count;
}
