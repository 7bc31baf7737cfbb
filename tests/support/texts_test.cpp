// AString, the arrays, the map and AFilePath.

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "qdf/support/aarrays.h"
#include "qdf/support/afilepath.h"
#include "qdf/support/amapstringtoptr.h"
#include "qdf/support/astring.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

TEST(AString, CutsAndFinds) {
  const AString text("abcad");
  std::vector<AString> cuts;
  for (const int count : {-1, 0, 2, 5, 9}) {
    cuts.push_back(text.Left(count));
    cuts.push_back(text.Right(count));
  }
  EXPECT_EQ(Dump(cuts), "||||ab|ad|abcad|abcad|abcad|abcad");
  EXPECT_EQ((std::vector<int>{text.Find('a'), text.Find('c'), text.Find('x'), text.Find("ca"),
                              text.Find("cb"), AString().Find("a")}),
            (std::vector<int>{0, 2, -1, 2, -1, -1}));
}

TEST(AString, ComparesBytesAndAsciiCase) {
  const struct {
    const char *a, *b;
    bool same, sameNoCase;
  } rows[] = {{"", "", true, true},           {"All", "All", true, true},
              {"aLl", "AlL", false, true},    {"a", "ab", false, false},
              {"a[", "a{", false, false},     {"@", "`", false, false},
              {"\xC4", "\xE4", false, false}, {"\xC3\x84", "\xC3\xA4", false, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(AString(row.a).Compare(row.b) == 0, row.same) << row.a << " " << row.b;
    EXPECT_EQ(AString(row.b).CompareNoCase(row.a) == 0, row.sameNoCase) << row.a << " " << row.b;
    EXPECT_EQ(AString(row.a) == AString(row.b), row.same);
  }
  AString text(" \t\r\n\v\f az\xE4\xC3\xA4{\xA0\r\n \t\v\f");
  text.TrimLeft();
  EXPECT_EQ(text.Left(2), "az");
  text.TrimRight();
  text.MakeUpper();
  EXPECT_EQ(text, "AZ\xE4\xC3\xA4{\xA0");
}

TEST(AString, CountsNoTextAsEmptyAndMayUseItself) {
  const char* none = nullptr;
  AString text(none);
  EXPECT_STREQ(text, "");
  text = none;
  text += none;
  text += 'a';
  text += text;
  EXPECT_EQ(text + "b" + AString("c"), "aabc");
  EXPECT_NE(text.Compare(none), 0);
  text.Format("%s%d %dx%d %lf,%lf", static_cast<const char*>(text), -1, 600, 300, 0.5, 1e10);
  EXPECT_EQ(text, "aa-1 600x300 0.500000,10000000000.000000");
  char* buffer = text.GetBuffer(1023);
  EXPECT_STREQ(buffer, text);
  std::memset(buffer, 'z', 1023);
  EXPECT_EQ(buffer[1023], '\0');
  buffer[2] = '\0';
  EXPECT_EQ(AString(buffer), "zz");
}

TEST(Arrays, AppendTheirOwnElementsAndInsertAnywhere) {
  AStringArray texts;
  EXPECT_EQ(texts.Add("a"), 0);
  EXPECT_EQ(texts.Add(texts[0]), 1);
  texts.ElementAt(1) = "b";
  EXPECT_EQ(texts.Append(texts), 2);
  EXPECT_EQ(Dump(texts), "a|b|a|b");
  texts.RemoveAll();
  EXPECT_EQ(texts.GetSize(), 0);

  ADWordArray words;
  EXPECT_EQ(words.Add(0xFFFFFFFFU), 0);
  words.Add(7);
  ADWordArray copy;
  copy.Add(1);
  copy.Copy(words);
  words[1] = 8;
  for (const int size : {2, 4, 8}) EXPECT_EQ(copy.Append(copy), size);
  EXPECT_EQ(Dump(copy), Join(std::vector<std::string>(8, "-1,7"), ","));
  words.SetSize(0, -1);
  EXPECT_EQ(words.GetSize(), 0);

  APtrArray pointers;
  int items[5] = {};
  const std::pair<int, int> inserted[] = {{3, 2}, {0, 0}, {1, 1}, {3, 3}};
  for (const auto& [at, item] : inserted) pointers.InsertAt(at, &items[item], 1);
  pointers.InsertAt(-1, &items[4], 0);
  ASSERT_EQ(pointers.GetSize(), 4);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(pointers.GetAt(i), &items[i]) << i;
  pointers.SetSize(0, -1);
  EXPECT_EQ(pointers.GetSize(), 0);
}

// "b1 a2": the entries in the order of the map, which may lose each behind its delivery.
std::string Dump(AMapStringToPtr& map, bool remove = false) {
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
  EXPECT_EQ(Dump(map), "");
  map.SetAt("b", texts[0]);
  map.SetAt("a", texts[1]);
  map.SetAt("B", texts[2]);
  map.SetAt("b", texts[2]);
  EXPECT_EQ(Dump(map), "b3 a2 B3");
  EXPECT_NE(map.RemoveKey("a"), 0);
  EXPECT_EQ(map.RemoveKey("a"), 0);
  map.SetAt("a", texts[0]);
  EXPECT_EQ(Dump(map, true), "b3 B3 a1");
  EXPECT_EQ(map.GetCount(), 0);
  map.SetAt("c", texts[0]);
  void* value = texts;
  EXPECT_EQ(map.Lookup("C", value) + map.Lookup("a", value), 0);
  EXPECT_EQ(value, texts);
  EXPECT_NE(map.Lookup("c", value), 0);
  EXPECT_EQ(value, texts[0]);
  map.RemoveAll();
  EXPECT_EQ(Dump(map), "");
}

TEST(AFilePath, JoinsWithOneSeparator) {
  const struct {
    const char *start, *added, *path, *name;
  } rows[] = {{"", "a", "a", "a"},        {"a", "b.qdf", "a/b.qdf", "b.qdf"},
              {"a/", "b", "a/b", "b"},    {"a//", "//b", "a/b", "b"},
              {"/", "a", "/a", "a"},      {"/x", "/etc/passwd", "/x/etc/passwd", "passwd"},
              {"", "/etc", "etc", "etc"}, {"a/b//", "", "a/b//", "b"},
              {"/", "", "/", ""},         {"a\\b", "c d", "a\\b/c d", "c d"}};
  for (const auto& row : rows) {
    AFilePath path(row.start);
    path += row.added;
    EXPECT_STREQ(path, row.path);
    AFilePath same(row.start);
    same += AString(row.added);
    EXPECT_STREQ(same, row.path);
    AString name("former");
    path.getFileName(name);
    EXPECT_EQ(name, row.name) << row.path;
  }
}

TEST(AFilePath, KnowsWhatStandsThere) {
  const TempFolder folder;
  const std::string file = folder.Write("file", "x");
  std::filesystem::create_symlink("nowhere", folder.Path("lost"));
  std::filesystem::create_symlink(folder.Path(), folder.Path("self"));
  const std::pair<std::string, const char*> rows[] = {{folder.Path(), "folder"},
                                                      {folder.Path() + "/", "folder"},
                                                      {folder.Path("self"), "folder"},
                                                      {file, "file"},
                                                      {file + "/x", "nothing"},
                                                      {folder.Path("lost"), "nothing"},
                                                      {"", "nothing"}};
  for (const auto& [path, kind] : rows) {
    const AFilePath at(path.c_str());
    EXPECT_STREQ(at.isDirectory() != 0 ? "folder" : at.exists() != 0 ? "file" : "nothing", kind);
  }
}

}  // namespace
