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
  for (const char* name : {"One", "ONE", ""}) names.Add(name);
  const std::pair<const char*, int> exactly[] = {{"ONE", 1}, {"one", -1}, {"", 2}};
  for (const auto& [name, index] : exactly) {
    AString text(name);
    EXPECT_EQ(FindExactString(text, names), index) << name;
  }
}

}  // namespace
