#pragma once

// AMapStringToPtr maps texts, compared with case, to untyped pointers. It owns copies of its keys
// and nothing of what the values point to.

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "qdf/support/astring.h"
#include "qdf/support/export.h"

class APMQDF_EXPORT AMapStringToPtr {
 public:
  // The block size would tune allocation; here it has no effect.
  explicit AMapStringToPtr(int blockSize = 10);
  virtual ~AMapStringToPtr();
  AMapStringToPtr(const AMapStringToPtr&) = delete;
  AMapStringToPtr& operator=(const AMapStringToPtr&) = delete;

  // Keys are texts up to their NUL; a null pointer counts as an empty one.
  //
  // Answers non-zero and sets the output for a key of the map, else 0 and doesn't touch it.
  int Lookup(const char* key, void*& value) const;
  // A key that is there already keeps its place in the enumeration and gets the new value.
  void SetAt(const char* key, void* value);
  // Non-zero when the key was there.
  int RemoveKey(const char* key);
  void RemoveAll();
  int GetCount() const { return static_cast<int>(nodes_.size()); }

  // Enumerates the entries in the order in which their keys were added:
  //
  //   void* position = map.GetStartPosition();
  //   while (position != nullptr) map.GetNextAssoc(position, key, value);
  //
  // The start is null when the map is empty, and the position becomes null after the last entry.
  // The entry that was just delivered may be removed, the one at the position may not.
  void* GetStartPosition() const { return first_; }
  // The key is copied last: when memory for it runs out, the value has been delivered and the
  // position advanced.
  void GetNextAssoc(void*& position, AString& key, void*& value) const;

 private:
  struct Links;
  using Node = std::pair<const std::string, Links>;
  struct Links {
    void* value;
    Node* previous;
    Node* next;
  };

  std::map<std::string, Links, std::less<>> nodes_;
  Node* first_ = nullptr;
  Node* last_ = nullptr;
};
