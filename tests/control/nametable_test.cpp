// How nodes come to refer to names.

#include "qdf/control/nametable.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/documents.h"

namespace {

TEST(NameTable, HelpersDifferInCaseEmptyTextsAndWhatTheySet) {
  using Helper = void (*)(CQDFNode*, AString&, AStringArray&);
  const Helper asDefault = InternDefaultString;
  const Helper ifGiven = InternDefaultStringIfGiven;
  const Helper asID = InternIDString;
  const Helper exact = [](CQDFNode* node, AString& text, AStringArray& names) {
    InternDefaultStringExact(node, names, text);
  };
  const struct {
    const char* what;
    Helper helper;
    const char* text;
    const char* state;  // the names in the list, and what the node refers to
  } rows[] = {{"default", asDefault, "ONE", "One|two 7"},
              {"default", asDefault, " one", "One|two| one 7>2"},
              {"default", asDefault, "", "One|two| 7>2"},
              {"given", ifGiven, "TWO", "One|two 7>1"},
              {"given", ifGiven, " ", "One|two|  7>2"},
              {"given", ifGiven, "", "One|two 7>5"},
              {"id", asID, "tWo", "One|two 7,1>5"},
              {"id", asID, "", "One|two| 7,2>5"},
              {"exact", exact, "TWO", "One|two|TWO 7>2"},
              {"exact", exact, " two\r\n", "One|two 7>1"},
              {"exact", exact, " \t", "One|two 7>5"}};
  for (const auto& row : rows) {
    AStringArray names;
    names.Add("One");
    names.Add("two");
    CQDFNode node;
    node.Default = 5;
    node.IDs.Add(7);
    AString text(row.text);
    row.helper(&node, text, names);
    row.helper(&node, text, names);
    EXPECT_EQ(Dump(names) + " " + Dump(node), row.state) << row.what << " \"" << row.text << '"';
  }

  AStringArray names;
  names.Add("One");
  names.Add("ONE");
  AString wanted("ONE");
  AString other("one");
  AString empty;
  EXPECT_EQ(FindExactString(wanted, names), 1);
  EXPECT_EQ(FindExactString(other, names), -1);
  EXPECT_EQ(FindExactString(empty, names), -1);
  names.Add("");
  EXPECT_EQ(FindExactString(empty, names), 2);
}

// Enough names for the table behind the walk, met again in both cases.
TEST(NameTable, FindsTheFirstOfManyNames) {
  AStringArray names;
  NameTable ignoring(names, NameCase::Ignored);
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 5000; ++i) {
      const std::string name = (round == 0 ? "n\xC3\xA4me " : "N\xC3\xA4ME ") + std::to_string(i);
      ASSERT_EQ(ignoring.Intern(name.c_str()), i);
    }
  }
  EXPECT_EQ(names.GetSize(), 5000);
  EXPECT_EQ(ignoring.Find("n\xC3\x84me 7"), -1);
  const NameTable exact(names, NameCase::Exact);
  EXPECT_EQ(exact.Find("N\xC3\xA4ME 7"), -1);
  EXPECT_EQ(exact.Find("n\xC3\xA4me 7"), 7);
}

}  // namespace
