#include "qdf/control/deferreddithers.h"

#include <utility>

#include "qdf/support/hashmix.h"

DeferredDithers::DeferredDithers(AStringArray& ditherNameList, APtrArray& ditherResolutionList)
    : names_(ditherNameList), records_(ditherResolutionList) {}

void DeferredDithers::BeginTree(const AXMLTree& tree) {
  if (&tree == ownTree_.get()) return;
  ReadAll();
  reader_.emplace(tree, names_, records_, &blocks_);
}

void DeferredDithers::BeginTree(std::unique_ptr<AXMLTree> tree) {
  BeginTree(*tree);
  ownTree_ = std::move(tree);
}

void DeferredDithers::EndTree() {
  if (unread_ == 0) ReadAll();
}

void DeferredDithers::Put(CQDFNode& colorMode, const AXMLTreeNode& element) {
  if (ownTree_ != nullptr) {
    entries_.push_back({&colorMode, element});
    ++unread_;
    index_.Add(HashAddress(&colorMode), static_cast<int>(entries_.size() - 1));
  } else {
    Read(colorMode, element);
  }
}

void DeferredDithers::Read(const CQDFNode& colorMode) {
  if (entries_.empty()) return;
  const auto entryAt = [&](int i) -> Entry& { return entries_[static_cast<std::size_t>(i)]; };
  const auto isOfNode = [&](int i) { return entryAt(i).colorMode == &colorMode; };
  const int found = index_.Find(HashAddress(&colorMode), isOfNode);
  if (found >= 0) ReadNow(entryAt(found));
  EndTree();
}

void DeferredDithers::ReadAll() {
  for (Entry& entry : entries_) ReadNow(entry);
  entries_.clear();
  index_.Clear();
  reader_.reset();
  ownTree_.reset();
}

void DeferredDithers::ReadNow(Entry& entry) {
  if (entry.colorMode == nullptr) return;
  Read(*entry.colorMode, entry.element);
  entry.colorMode = nullptr;
  --unread_;
}

void DeferredDithers::Read(CQDFNode& colorMode, const AXMLTreeNode& element) {
  const int formerLeaves = colorMode.Children.GetSize();
  const int formerRecords = records_.GetSize();
  try {
    reader_->AddLeaves(colorMode, element);
  } catch (...) {
    for (int i = formerLeaves; i < colorMode.Children.GetSize(); ++i) delete ChildAt(colorMode, i);
    colorMode.Children.SetSize(formerLeaves, -1);
    records_.SetSize(formerRecords, -1);
    throw;
  }
}
