// What counts as a document at all.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "qdf/support/axmltree.h"
#include "qdf/support/xmlwellformed.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

// Line and column of the fault, 0 and 0 for a document.
struct Row {
  std::string_view text;
  int line, column;
};

using namespace std::string_view_literals;

constexpr Row kRows[] = {
    {"<a/>", 0, 0},
    {"\xEF\xBB\xBF<a/>", 0, 0},
    {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<!-- - -->\n<?pi x?><a></a >\n<!----> ", 0,
     0},
    {"<!DOCTYPE a [<!ELEMENT a (#PCDATA)><!-- > ' --><?p '>?><!ATTLIST a b CDATA \">\">]><a/>", 0,
     0},
    {"<_a.-:9\xC3\xA4 b = '\"&lt;>' c=\"'\"/>", 0, 0},
    {"<a>]] > ]]&gt; &#x10FFFF;&#1;&#0065;</a>", 0, 0},
    {"<a><![CDATA[<&]]]]>--</a>", 0, 0},
    {"<a\n\tb\n=\n''/>", 0, 0},
    {"<a>\x7F\t\r\n</a>", 0, 0},
    {"<a><a><a></a></a><a></a></a>", 0, 0},
    // Roots, and what stands beside them.
    {"", 1, 1},
    {" \n ", 2, 2},
    {"<?xml version='1.0'?><!-- -->", 1, 30},
    {"<a/><b/>", 1, 5},
    {"x<a/>", 1, 1},
    {"<a/>\n x", 2, 2},
    {"<a/>&lt;", 1, 5},
    {"<a/><![CDATA[]]>", 1, 5},
    {"\0<a/>"sv, 1, 1},
    {"<a/>\0"sv, 1, 5},
    // Elements.
    {"<a>", 1, 1},
    {"<a><b></a></b>", 1, 7},
    {"<a></A>", 1, 4},
    {"</a>", 1, 1},
    {"<a></a b>", 1, 8},
    {"<a", 1, 3},
    {"<a/ >", 1, 4},
    {"< a/>", 1, 2},
    {"<1a/>", 1, 2},
    {"<a><-b/></a>", 1, 5},
    {"<a$/>", 1, 3},
    {"<a>1 < 2</a>", 1, 7},
    {"<a><!ELEMENT b></a>", 1, 4},
    {"<a><!DOCTYPE b></a>", 1, 4},
    {"<!DOCTYPE a><!DOCTYPE a><a/>", 1, 13},
    {"<!DOCTYPE a [<!ENTITY b ''>", 1, 1},
    {"<!DOCTYPE a [<b> <a/>", 1, 14},
    // Attributes.
    {"<a b='1' b='2'/>", 1, 10},
    {"<a b='1' c='' d='' b=''/>", 1, 20},
    {"<a b='1'c='2'/>", 1, 9},
    {"<a b/>", 1, 5},
    {"<a b=1/>", 1, 6},
    {"<a b='<'/>", 1, 7},
    {"<a b='1", 1, 6},
    {"<a 1b=''/>", 1, 4},
    {"<a b='\x01'/>", 1, 7},
    // References.
    {"<a>&</a>", 1, 4},
    {"<a>&nbsp;</a>", 1, 4},
    {"<a>&lt</a>", 1, 4},
    {"<a b='&AMP;'/>", 1, 7},
    {"<a>&#;</a>", 1, 4},
    {"<a>&#x;</a>", 1, 4},
    {"<a>&#X41;</a>", 1, 4},
    {"<a>&#12a;</a>", 1, 4},
    {"<a>&#0;</a>", 1, 4},
    {"<a>&#xD800;</a>", 1, 4},
    {"<a>&#x110000;</a>", 1, 4},
    {"<a>&#4294967361;</a>", 1, 4},
    // Comments, instructions, text.
    {"<a><!-- -- --></a>", 1, 11},
    {"<a><!-- --->\n</a>", 1, 11},
    {"<a><!-- </a>", 1, 8},
    {"<a><!-- \x02 --></a>", 1, 9},
    {"<a>]]></a>", 1, 4},
    {"<a>]]]></a>", 1, 5},
    {"<a>\n\x0B</a>", 2, 1},
    {"<a><![CDATA[ </a>", 1, 4},
    {"<a><![CDATA[\x1F]]></a>", 1, 13},
    {" <?xml version='1.0'?><a/>", 1, 2},
    {"<a/><?xml version='1.0'?>", 1, 5},
    {"<?XML version='1.0'?><a/>", 1, 1},
    {"<? pi?><a/>", 1, 3},
    {"<?p$?><a/>", 1, 4},
    {"<a><?pi </a>", 1, 8},
    {"<a>\r\n<b>\n  <c>\n</a>", 4, 1},
};

TEST(WellFormed, DocumentsAreTakenAndFaultsFound) {
  const TempFolder folder;
  for (const Row& row : kRows) {
    AFilePath path(folder.Write("document", row.text).c_str());
    AXMLTree tree("RootElement");
    const int loaded = tree.loadFromFile(path, 1);
    EXPECT_EQ(loaded != 0, row.line == 0) << row.text;
    EXPECT_EQ(tree.loadFault().Line, row.line) << row.text << ": " << tree.loadFault().Reason;
    EXPECT_EQ(tree.loadFault().Column, row.column) << row.text << ": " << tree.loadFault().Reason;
  }
}

// From a block that ends with the NUL, so that a sanitizer sees each byte read beyond it.
bool IsFaulty(std::string_view text) {
  const auto bytes = std::make_unique<char[]>(text.size() + 1);
  text.copy(bytes.get(), text.size());
  return ExamineXML({bytes.get(), text.size()}).fault != nullptr;
}

TEST(WellFormed, EveryTextCutShortIsRefused) {
  for (const Row& row : kRows) {
    for (std::size_t cut = 0; cut < row.text.size(); ++cut) IsFaulty(row.text.substr(0, cut));
  }
  const std::string whole = ReadFile(QDF_EXAMPLES "/OutputDrivers/dyesub6.qdf");
  const std::size_t complete = whole.find_last_not_of(" \r\n\t") + 1;
  ASSERT_GT(complete, 6000U);
  const TempFolder folder;
  const std::string file = folder.Write("cut.qdf", whole);
  for (std::size_t length = whole.size() + 1; length-- > 0;) {
    std::filesystem::resize_file(file, length);
    const bool taken = length >= complete;
    ASSERT_EQ(IsFaulty(whole.substr(0, length)), !taken) << length;
    ASSERT_EQ(LoadFile(file) != nullptr, taken) << length;
  }
}

}  // namespace
