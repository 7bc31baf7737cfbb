// AString, the arrays and AFilePath.

#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

#include "qdf/support/aarrays.h"
#include "qdf/support/afilepath.h"
#include "qdf/support/astring.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

TEST(AString, CutsAndFinds) {
  const AString text("abcab");
  const struct {
    int count;
    const char* left;
    const char* right;
  } cuts[] = {
      {-1, "", ""}, {0, "", ""}, {2, "ab", "ab"}, {5, "abcab", "abcab"}, {9, "abcab", "abcab"}};
  for (const auto& row : cuts) {
    EXPECT_EQ(text.Left(row.count), row.left) << row.count;
    EXPECT_EQ(text.Right(row.count), row.right) << row.count;
  }
  EXPECT_EQ(text.Find('a'), 0);
  EXPECT_EQ(text.Find('c'), 2);
  EXPECT_EQ(text.Find('x'), -1);
  EXPECT_EQ(text.Find("ca"), 2);
  EXPECT_EQ(text.Find("cb"), -1);
  EXPECT_EQ(AString().Find("a"), -1);
}

TEST(AString, ComparesBytesAndAsciiCase) {
  const struct {
    const char* a;
    const char* b;
    bool same;
    bool sameNoCase;
  } rows[] = {{"", "", true, true},           {"All", "All", true, true},
              {"aLl", "AlL", false, true},    {"a", "ab", false, false},
              {"a[", "a{", false, false},     {"@", "`", false, false},
              {"\xC4", "\xE4", false, false}, {"\xC3\x84", "\xC3\xA4", false, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(AString(row.a).Compare(row.b) == 0, row.same) << row.a << " " << row.b;
    EXPECT_EQ(AString(row.b).CompareNoCase(row.a) == 0, row.sameNoCase) << row.a << " " << row.b;
    EXPECT_EQ(AString(row.a) == AString(row.b), row.same);
  }
  AString text("az\xE4\xC3\xA4{");
  text.MakeUpper();
  EXPECT_EQ(text, "AZ\xE4\xC3\xA4{");
}

TEST(AString, TrimsEveryLineEnd) {
  AString text(" \t\r\n\v\f a b\xA0\r\n \t\v\f");
  text.TrimLeft();
  EXPECT_EQ(text.Left(3), "a b");
  text.TrimRight();
  EXPECT_EQ(text, "a b\xA0");
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
  EXPECT_EQ(words.Append(words), 2);
  EXPECT_EQ(Dump(words), "-1,7,-1,7");
  ADWordArray copy;
  copy.Add(1);
  copy.Copy(words);
  words[1] = 8;
  EXPECT_EQ(Dump(copy), "-1,7,-1,7");
  EXPECT_EQ(copy.Append(copy), 4);
  EXPECT_EQ(copy.Append(copy), 8);
  EXPECT_EQ(Dump(copy), "-1,7,-1,7,-1,7,-1,7,-1,7,-1,7,-1,7,-1,7");
  words.SetSize(0, -1);
  EXPECT_EQ(words.GetSize(), 0);

  APtrArray pointers;
  int items[5] = {};
  pointers.InsertAt(3, &items[2], 1);
  pointers.InsertAt(0, &items[0], 1);
  pointers.InsertAt(1, &items[1], 1);
  pointers.InsertAt(3, &items[3], 1);
  pointers.InsertAt(-1, &items[4], 0);
  ASSERT_EQ(pointers.GetSize(), 4);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(pointers.GetAt(i), &items[i]) << i;
  pointers.SetSize(0, -1);
  EXPECT_EQ(pointers.GetSize(), 0);

  EXPECT_TRUE(std::has_virtual_destructor_v<AStringArray>);
  EXPECT_TRUE(std::has_virtual_destructor_v<ADWordArray>);
  EXPECT_TRUE(std::has_virtual_destructor_v<APtrArray>);
}

TEST(AFilePath, JoinsWithOneSeparator) {
  const struct {
    const char* start;
    const char* added;
    const char* path;
    const char* name;
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
  const auto found = [](const std::string& path) {
    const AFilePath at(path.c_str());
    return at.isDirectory() != 0 ? "folder" : at.exists() != 0 ? "file" : "nothing";
  };
  EXPECT_STREQ(found(folder.Path()), "folder");
  EXPECT_STREQ(found(folder.Path() + "/"), "folder");
  EXPECT_STREQ(found(folder.Path("self")), "folder");
  EXPECT_STREQ(found(file), "file");
  EXPECT_STREQ(found(file + "/x"), "nothing");
  EXPECT_STREQ(found(folder.Path("lost")), "nothing");
  EXPECT_STREQ(found(""), "nothing");
}

}  // namespace
