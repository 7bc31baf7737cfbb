#pragma once

// How the derivation finds a record again: by a key, which is equal for records that count as the
// same one. Names count with their first 256 characters, as many as the fields of a record hold.

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "qdf/support/astring.h"
#include "qdf/support/hashindex.h"

// As much of a text as a name field holds.
std::string_view FieldPart(const AString& text);

// Keys hold no texts of their own, they point into records. KeepTexts has a key point to copies
// that live as long as the memory which it is given.
using KeyTexts = std::pmr::monotonic_buffer_resource;

struct NameKey {
  std::string_view name;

  bool operator==(const NameKey&) const = default;
  std::uint32_t Hash() const;
  void KeepTexts(KeyTexts& texts);
};

struct MediaKey {
  std::string_view internalName;
  std::string_view unlocalizedName;

  bool operator==(const MediaKey&) const = default;
  std::uint32_t Hash() const;
  void KeepTexts(KeyTexts& texts);
};

// The quality's name counts without its case.
struct PrintModeKey {
  std::string_view internalName;
  std::string_view displayName;

  bool operator==(const PrintModeKey& other) const;
  std::uint32_t Hash() const;
  void KeepTexts(KeyTexts& texts);
};

// Two that aren't numbers are never equal.
struct ResolutionKey {
  std::string_view displayName;
  double x;
  double y;

  bool operator==(const ResolutionKey&) const = default;
  std::uint32_t Hash() const;
  void KeepTexts(KeyTexts& texts);
};

// Finds keys without walking them. They are numbered from 0 by their addition. Their texts stand
// close together: a look-up that went to the wide records would wait for memory each time.
template <class Key>
class KeyIndex {
 public:
  // The number of the equal key, -1 when there is none.
  int Find(const Key& key) const { return Find(key, key.Hash()); }

  const Key& operator[](std::size_t number) const { return keys_[number]; }

  struct Place {
    int number;
    bool isNew;
  };
  // That of the equal key or, when there is none, of this one.
  Place FindOrAdd(const Key& key) {
    const std::uint32_t hash = key.Hash();
    const int known = Find(key, hash);
    if (known >= 0) return {known, false};
    const int added = static_cast<int>(keys_.size());
    keys_.push_back(key);
    keys_.back().KeepTexts(texts_);
    // What equals nothing can't be found, and many of the kind would lie in each other's way.
    if (IsEqual(key, key)) index_.Add(hash, added);
    return {added, true};
  }

 private:
  // Compilers warn where a thing is compared with itself, which a key that isn't a number needs.
  static bool IsEqual(const Key& a, const Key& b) { return a == b; }

  int Find(const Key& key, std::uint32_t hash) const {
    return index_.Find(hash,
                       [&](int i) { return IsEqual(keys_[static_cast<std::size_t>(i)], key); });
  }

  KeyTexts texts_{std::pmr::new_delete_resource()};  // not what the host made the default
  std::vector<Key> keys_;
  HashIndex index_;
};
