#include "qdf/hpimport/growingtree.h"

#include <algorithm>

#include "qdf/hpimport/derivecontroltree.h"
#include "qdf/support/hashmix.h"

namespace {

// A look at so many ids costs no more than to remember them.
constexpr int kFewIDs = 8;

int CountIDs(const CQDFNode& parent) {
  int count = 0;
  for (int i = 0; i < parent.Children.GetSize(); ++i) count += ChildAt(parent, i)->IDs.GetSize();
  return count;
}

// Such a parent is walked and isn't in the index. What has grown beyond this never comes back to
// it.
bool HasFewIDs(const CQDFNode& parent) {
  return parent.Children.GetSize() <= kFewIDs && CountIDs(parent) <= kFewIDs;
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

void GrowingTree::Remember(const CQDFNode& parent, const ADWordArray& ids, CQDFNode& child) {
  const Found found{&parent, &ids, &child, StateOf(parent)};
  Found* former = FormerlyFound(parent, ids);
  if (former != nullptr) {
    *former = found;
  } else {
    foundIndex_.Add(HashAddress(&parent) + HashAddress(&ids), static_cast<int>(found_.size()));
    found_.push_back(found);
  }
}

int GrowingTree::StateOf(const CQDFNode& parent) const {
  return HasFewIDs(parent) ? CountIDs(parent) : kFewIDs + 1 + moves_;
}

void GrowingTree::IndexChildren(const CQDFNode& parent) {
  for (int i = 0; i < parent.Children.GetSize(); ++i) {
    for (const std::uint32_t id : ChildAt(parent, i)->IDs) {
      if (HolderOf(parent, id) == nullptr) SetHolder(parent, id, i);
    }
  }
}

CQDFNode& GrowingTree::FindOrAddByIndex(CQDFNode& parent, ADWordArray& ids) {
  const int child = FirstWithAny(parent, ids);
  const bool isNew = child == parent.Children.GetSize();
  CQDFNode& node = isNew ? *AddChildNode(parent, ids) : *ChildAt(parent, child);
  // An id stands in the child exactly when the child is its holder, so merging needs no search.
  for (const std::uint32_t id : ids) {
    if (SetHolder(parent, id, child) && !isNew) node.IDs.Add(id);
  }
  return node;
}

CQDFNode& GrowingTree::FindOrAddChild(CQDFNode& parent, ADWordArray& ids) {
  const bool isLarge = ids.GetSize() > kFewIDs;
  const Found* former = isLarge ? FormerlyFound(parent, ids) : nullptr;
  if (former != nullptr && former->state == StateOf(parent)) return *former->child;
  const bool isWalked = HasFewIDs(parent);
  CQDFNode& child = isWalked ? *::FindOrAddChild(&parent, ids) : FindOrAddByIndex(parent, ids);
  if (isWalked && !HasFewIDs(parent)) IndexChildren(parent);
  if (isLarge) Remember(parent, ids, child);
  return child;
}
