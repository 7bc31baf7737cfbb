#include "qdf/support/hashindex.h"

const char hashmix::kAnchor = 0;

void HashIndex::AddToTable(Entry entry) {
  if (many_.empty()) many_.assign(few_.begin(), few_.end());
  many_.push_back(entry);
  if (slots_.size() >= many_.size() * 2) {
    LinkFrom(many_.size() - 1);
  } else {
    std::size_t size = kFew * 2;
    while (size < many_.size() * 4) size *= 2;
    slots_.assign(size, kFree);
    LinkFrom(0);
  }
}

void HashIndex::LinkFrom(std::size_t first) {
  for (std::size_t i = first; i < many_.size(); ++i) {
    std::size_t slot = Scatter(many_[i].hash);
    while (slots_[slot] != kFree) slot = Next(slot);
    slots_[slot] = static_cast<std::uint32_t>(i);
  }
}
