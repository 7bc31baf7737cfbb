#include "qdf/support/amapstringtoptr.h"

#include <string_view>

#include "qdf/support/text.h"

AMapStringToPtr::AMapStringToPtr(int /*blockSize*/) {}

AMapStringToPtr::~AMapStringToPtr() = default;

int AMapStringToPtr::Lookup(const char* key, void*& value) const {
  const auto found = nodes_.find(std::string_view(OrEmpty(key)));
  if (found == nodes_.end()) return 0;
  value = found->second.value;
  return 1;
}

void AMapStringToPtr::SetAt(const char* key, void* value) {
  const auto [place, added] = nodes_.try_emplace(OrEmpty(key));
  Node& node = *place;
  node.second.value = value;
  if (!added) return;
  node.second.previous = last_;
  (last_ != nullptr ? last_->second.next : first_) = &node;
  last_ = &node;
}

int AMapStringToPtr::RemoveKey(const char* key) {
  const auto found = nodes_.find(std::string_view(OrEmpty(key)));
  if (found == nodes_.end()) return 0;
  const Links& links = found->second;
  (links.previous != nullptr ? links.previous->second.next : first_) = links.next;
  (links.next != nullptr ? links.next->second.previous : last_) = links.previous;
  nodes_.erase(found);
  return 1;
}

void AMapStringToPtr::RemoveAll() {
  nodes_.clear();
  first_ = nullptr;
  last_ = nullptr;
}

void AMapStringToPtr::GetNextAssoc(void*& position, AString& key, void*& value) const {
  if (position == nullptr) return;
  const Node& node = *static_cast<const Node*>(position);
  value = node.second.value;
  position = node.second.next;
  key = node.first.c_str();
}
