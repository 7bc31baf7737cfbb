#include "qdf/support/hashindex.h"

void HashIndex::Link(std::size_t entry) {
  if (slots_.size() < entries_.size() * 2) {
    std::size_t size = kFlat * 2;
    while (size < entries_.size() * 4) size *= 2;
    slots_.assign(size, kFree);
    entry = 0;
  }
  for (; entry < entries_.size(); ++entry) {
    std::size_t slot = Scatter(entries_[entry].hash);
    while (slots_[slot] != kFree) slot = Next(slot);
    slots_[slot] = static_cast<std::uint32_t>(entry);
  }
}
