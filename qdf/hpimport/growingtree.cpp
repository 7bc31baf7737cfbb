#include "qdf/hpimport/growingtree.h"

#include <algorithm>

#include "qdf/hpimport/derivecontroltree.h"
#include "qdf/support/hashmix.h"

namespace {

// A look at so many ids costs no more than to remember them.
constexpr int kFewIDs = 8;

// Such a parent isn't in the index. What has grown beyond this never comes back to it.
bool HasFewIDs(const CQDFNode& parent) {
  const int children = parent.Children.GetSize();
  int ids = 0;
  for (int i = 0; i < children && children <= kFewIDs && ids <= kFewIDs; ++i) {
    ids += ChildAt(parent, i)->IDs.GetSize();
  }
  return children <= kFewIDs && ids <= kFewIDs;
}

}  // namespace

GrowingTree::Holder* GrowingTree::HolderOf(const CQDFNode& parent, std::uint32_t id) {
  const int at = holderIndex_.Find(HashAddress(&parent) + id, [&](int i) {
    const Holder& holder = holders_[static_cast<std::size_t>(i)];
    return holder.parent == &parent && holder.id == id;
  });
  return at >= 0 ? &holders_[static_cast<std::size_t>(at)] : nullptr;
}

int GrowingTree::FirstWithAny(const CQDFNode& parent, const ADWordArray& ids) {
  int first = parent.Children.GetSize();
  for (const std::uint32_t id : ids) {
    const Holder* holder = HolderOf(parent, id);
    if (holder != nullptr) first = std::min(first, holder->child);
  }
  return first;
}

bool GrowingTree::SetHolder(const CQDFNode& parent, std::uint32_t id, int child) {
  Holder* holder = HolderOf(parent, id);
  if (holder == nullptr) {
    holderIndex_.Add(HashAddress(&parent) + id, static_cast<int>(holders_.size()));
    holders_.push_back({&parent, id, child});
    return true;
  }
  if (holder->child == child) return false;
  holder->child = child;
  ++moves_;
  return true;
}

GrowingTree::Found* GrowingTree::FormerlyFound(const CQDFNode& parent, const ADWordArray& ids) {
  const int at = foundIndex_.Find(HashAddress(&parent) + HashAddress(&ids), [&](int i) {
    const Found& found = found_[static_cast<std::size_t>(i)];
    return found.parent == &parent && found.ids == &ids;
  });
  return at >= 0 ? &found_[static_cast<std::size_t>(at)] : nullptr;
}

void GrowingTree::Remember(const CQDFNode& parent, const ADWordArray& ids, int child) {
  Found* former = FormerlyFound(parent, ids);
  if (former != nullptr) {
    *former = {&parent, &ids, child, moves_};
  } else {
    foundIndex_.Add(HashAddress(&parent) + HashAddress(&ids), static_cast<int>(found_.size()));
    found_.push_back({&parent, &ids, child, moves_});
  }
}

void GrowingTree::IndexChildren(const CQDFNode& parent) {
  for (int i = 0; i < parent.Children.GetSize(); ++i) {
    for (const std::uint32_t id : ChildAt(parent, i)->IDs) {
      if (HolderOf(parent, id) == nullptr) SetHolder(parent, id, i);
    }
  }
}

CQDFNode& GrowingTree::FindOrAddChild(CQDFNode& parent, ADWordArray& ids) {
  if (HasFewIDs(parent)) {
    CQDFNode& child = *::FindOrAddChild(&parent, ids);
    if (!HasFewIDs(parent)) IndexChildren(parent);
    return child;
  }
  const bool isLarge = ids.GetSize() > kFewIDs;
  const Found* former = isLarge ? FormerlyFound(parent, ids) : nullptr;
  // Without a move since then, the same child is still the first and holds all the ids.
  if (former != nullptr && former->moves == moves_) return *ChildAt(parent, former->child);
  const int child = FirstWithAny(parent, ids);
  const bool isNew = child == parent.Children.GetSize();
  CQDFNode& node = isNew ? *AddChildNode(parent, ids) : *ChildAt(parent, child);
  // An id stands in the child exactly when the child is its holder, so merging needs no search.
  for (const std::uint32_t id : ids) {
    if (SetHolder(parent, id, child) && !isNew) node.IDs.Add(id);
  }
  if (isLarge) Remember(parent, ids, child);
  return node;
}
