#pragma once

// HashIndex finds the first of several things with a property without a walk over all of them. It
// stores a hash and a position for each; the things themselves stay where they are, and the caller
// says whether the thing at a position is the one that it looks for.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "qdf/support/hashmix.h"

class HashIndex {
 public:
  HashIndex() = default;
  HashIndex(HashIndex&&) = default;
  HashIndex(const HashIndex&) = delete;
  HashIndex& operator=(const HashIndex&) = delete;

  void Add(std::uint32_t hash, int position) {
    if (size_ < kFew) {
      few_[size_] = {hash, position};
    } else {
      AddToTable({hash, position});
    }
    ++size_;
  }

  void Clear() {
    size_ = 0;
    many_.clear();
    slots_.clear();
  }

  // The position that was added first among those with this hash for which `same(position)` holds,
  // -1 when there is none.
  template <class Same>
  int Find(std::uint32_t hash, Same same) const {
    if (size_ <= kFew) {
      for (std::size_t i = 0; i < size_; ++i) {
        if (few_[i].hash == hash && same(few_[i].position)) return few_[i].position;
      }
      return -1;
    }
    for (std::size_t slot = Scatter(hash); slots_[slot] != kFree; slot = Next(slot)) {
      const Entry& entry = many_[slots_[slot]];
      if (entry.hash == hash && same(entry.position)) return entry.position;
    }
    return -1;
  }

 private:
  struct Entry {
    std::uint32_t hash;
    int position;
  };

  // Most indexes stay small: up to this many entries a walk is cheaper than a table.
  static constexpr std::size_t kFew = 16;
  static constexpr std::uint32_t kFree = 0xFFFFFFFFU;

  // A hash may be an id, which whoever writes a document chooses: mixed, it leads to a slot that
  // can't be foretold.
  std::size_t Scatter(std::uint32_t hash) const {
    return static_cast<std::size_t>(MixHash(hash)) & (slots_.size() - 1);
  }
  std::size_t Next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }

  void AddToTable(Entry entry);
  // Entries go in by their order, so that the first of equal hashes is met first.
  void LinkFrom(std::size_t first);

  std::size_t size_ = 0;
  std::array<Entry, kFew> few_;       // set as far as size_ tells, so that an index costs nothing
  std::vector<Entry> many_;           // all entries, once they are more than a few
  std::vector<std::uint32_t> slots_;  // indices into many_; at most half of them taken
};
