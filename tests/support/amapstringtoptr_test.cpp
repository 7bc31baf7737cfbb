// The map of custom media, and of hosts.

#include "qdf/support/amapstringtoptr.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// "b1 a2": the entries in the order of the map, which may lose each behind its delivery.
std::string Entries(AMapStringToPtr& map, bool remove = false) {
  std::string entries;
  AString key;
  void* value = nullptr;
  void* position = map.GetStartPosition();
  while (position != nullptr) {
    map.GetNextAssoc(position, key, value);
    entries.append(entries.empty() ? "" : " ").append(key).append(static_cast<const char*>(value));
    if (remove) map.RemoveKey(key);
  }
  return entries;
}

TEST(MapStringToPtr, KeepsKeysInTheOrderInWhichTheyCame) {
  char texts[3][2] = {"1", "2", "3"};
  AMapStringToPtr map(10);
  EXPECT_EQ(Entries(map), "");
  map.SetAt("b", texts[0]);
  map.SetAt("a", texts[1]);
  map.SetAt("B", texts[2]);
  map.SetAt("b", texts[2]);
  EXPECT_EQ(Entries(map), "b3 a2 B3");
  EXPECT_NE(map.RemoveKey("a"), 0);
  EXPECT_EQ(map.RemoveKey("a"), 0);
  map.SetAt("a", texts[0]);
  EXPECT_EQ(Entries(map, true), "b3 B3 a1");
  EXPECT_EQ(map.GetCount(), 0);
  map.SetAt("c", texts[0]);
  void* value = texts;
  EXPECT_EQ(map.Lookup("C", value) + map.Lookup("a", value), 0);
  EXPECT_EQ(value, texts);
  EXPECT_NE(map.Lookup("c", value), 0);
  EXPECT_EQ(value, texts[0]);
  map.RemoveAll();
  EXPECT_EQ(Entries(map), "");
}

}  // namespace
