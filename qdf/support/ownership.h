#pragma once

// Arrays of untyped pointers own nothing by themselves; these say who does.

#include <memory>

#include "qdf/support/aarrays.h"

// Appends the item to an array whose holder frees it from then on.
template <class Item>
Item* AddOwned(APtrArray& array, std::unique_ptr<Item> item) {
  array.Add(item.get());
  return item.release();
}

// Frees all items of an array and empties it.
template <class Item>
void DeleteItems(APtrArray& array) {
  for (int i = 0; i < array.GetSize(); ++i) delete static_cast<Item*>(array.GetAt(i));
  array.SetSize(0, -1);
}

// For as long as it lives, an array of items that go with it.
template <class Item>
class OwnedItems : public APtrArray {
 public:
  OwnedItems() = default;
  OwnedItems(const OwnedItems&) = delete;
  OwnedItems& operator=(const OwnedItems&) = delete;
  ~OwnedItems() override { DeleteItems<Item>(*this); }
};
