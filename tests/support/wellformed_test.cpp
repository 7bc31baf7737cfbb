// What counts as a document at all.

#include <gtest/gtest.h>

#include "qdf/support/axmltree.h"
#include "qdf/support/xmlwellformed.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

using namespace std::string_view_literals;

// Each between "|".
constexpr std::string_view kDocuments =
    "<a/>|\xEF\xBB\xBF<a/>|<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<!-- - -->\n<?pi x?>"
    "<a></a >\n<!----> |<!DOCTYPE a [<!ELEMENT a (#PCDATA)><!-- > ' --><?p '>?><!ATTLIST a b CDATA "
    "\">\">]><a/>|<_a.-:9\xC3\xA4 b = '\"&lt;>' c=\"'\"/>|<a>]] > ]]&gt; &#x10FFFF;&#1;&#0065;</a>|"
    "<a><![CDATA[<&]]]]>--</a>|<a\n\tb\n=\n''/>|<a>\x7F\t\r\n</a>|<a><a><a></a></a><a></a></a>|"
    "<a b='' c='' d='' e='' f='' g='' h='' i='' j='' k=''><a b='' c='' d='' e='' f='' g='' h='' "
    "i='' j='' k=''/></a>|<a b=''/><!--x--><?p?>|<?xml version = '1.10'\tencoding='UTF-8' "
    "standalone=\"no\"\n?><a/>|<?xml version='1.0' standalone='yes'?><a/>";
constexpr std::string_view kRefused =
    // Roots, and what stands beside them.
    "| \n |<?xml version='1.0'?><!-- -->|<a/><b/>|x<a/>|<a/>\n x|<a/>&lt;|<a/><![CDATA[]]>|\0<a/>|"
    "<a/>\0|"
    // Elements.
    "<a>|<a><b></a></b>|<a></A>|</a>|<a></a b>|<ab></a>|<a></ab>|<a|<a/ >|< a/>|<1a/>|<a><-b/></a>|"
    "<a$/>|<a>1 < 2</a>|<a><!ELEMENT b></a>|<a><!DOCTYPE b></a>|<!DOCTYPE a><!DOCTYPE a><a/>|"
    "<!DOCTYPE a [<!ENTITY b ''>|<!DOCTYPE a [<b> <a/>|<!DOCTYPE a \x01><a/>|"
    // Attributes.
    "<a b='1' b='2'/>|<a b='1' c='' d='' b=''/>|<a b='1'c='2'/>|<a b/>|<a b=1/>|<a b='<'/>|<a b='1|"
    "<a 1b=''/>|<a b='\x01'/>|<a b='' c='' d='' e='' f='' g='' h='' i='' j='' k='' j=''/>|"
    // References.
    "<a>&</a>|<a>&nbsp;</a>|<a>&lt</a>|<a b='&AMP;'/>|<a>&#;</a>|<a>&#x;</a>|<a>&#X41;</a>|"
    "<a>&#12a;</a>|<a>&#0;</a>|<a>&#xD800;</a>|<a>&#x110000;</a>|<a>&#4294967361;</a>|"
    // Comments, instructions, text.
    "<a><!-- -- --></a>|<a><!-- --->\n</a>|<a><!-- </a>|<a><!-- \x02 "
    "--></a>|<a>]]></a>|<a>]]]></a>|"
    "<a>\n\x0B</a>|<a><![CDATA[ </a>|<a><![CDATA[\x1F]]></a>| <?xml version='1.0'?><a/>|"
    "<a/><?xml version='1.0'?>|<?XML version='1.0'?><a/>|<? pi?><a/>|<?p$?><a/>|<a><?pi </a>|"
    // Declarations.
    "<?xml?><a/>|<?xml encoding='x'?><a/>|<?xml version=1.0?><a/>|<?xml version='1.'?><a/>|"
    "<?xml version='1.0 '?><a/>|<?xml version='2.0'?><a/>|<?xml version=\"1.0'?><a/>|"
    "<?xml version='1.0'encoding='x'?><a/>|<?xml version='1.0' encoding=''?><a/>|"
    "<?xml version='1.0' encoding='8x'?><a/>|<?xml version='1.0' encoding='a b'?><a/>|"
    "<?xml version='1.0' standalone='YES'?><a/>|<?xml version='1.0' standalone='no' encoding='x'?>"
    "<a/>|<?xml version='1.0' x?><a/>"sv;

// Without a reason when the text loads.
AXMLFault FaultOf(std::string_view text) {
  const TempFolder folder;
  AFilePath path(folder.Write("document", text).c_str());
  AXMLTree tree("RootElement");
  const int loaded = tree.loadFromFile(path, 1);
  EXPECT_EQ(loaded != 0, tree.loadFault().Reason == "") << text;
  return tree.loadFault();
}

TEST(WellFormed, TellsDocumentsFromWhatIsNone) {
  for (const std::string& text : Split(kDocuments)) EXPECT_EQ(FaultOf(text).Reason, "") << text;
  for (const std::string& text : Split(kRefused)) EXPECT_NE(FaultOf(text).Reason, "") << text;
}

TEST(WellFormed, SaysWhereAFaultShows) {
  const struct {
    std::string_view text;
    int line, column;
  } rows[] = {{"", 1, 1},
              {" \n ", 2, 2},
              {"<a/>\n x", 2, 2},
              {"<a>\r\n<b>\n  <c>\n</a>", 4, 1},
              {"<a>\n <b>\n", 2, 2},
              {"<a><b><c/></b><b><c/></b>\n<b><c/></d></a>", 2, 8},
              {"<a\n b='1'\n b='2'/>", 3, 2},
              {"<a>\n&x;</a>", 2, 1},
              {"<a>\n<!-- -- --></a>", 2, 8},
              {"<a>\n \x0B</a>", 2, 2},
              {"<!DOCTYPE a\n [<b> <a/>", 2, 3}};
  for (const auto& row : rows) {
    const AXMLFault fault = FaultOf(row.text);
    EXPECT_EQ(fault.Line, row.line) << row.text;
    EXPECT_EQ(fault.Column, row.column) << row.text;
  }
}

// From a block that ends with the NUL, so that a sanitizer sees each byte read beyond it.
bool IsFaulty(std::string_view text) {
  const auto bytes = std::make_unique<char[]>(text.size() + 1);
  text.copy(bytes.get(), text.size());
  return ExamineXML({bytes.get(), text.size()}).fault != nullptr;
}

TEST(WellFormed, EveryTextCutShortIsRefused) {
  for (const std::string& text : Split(std::string(kDocuments) + "|" + std::string(kRefused))) {
    for (std::size_t cut = 0; cut < text.size(); ++cut) IsFaulty(text.substr(0, cut));
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
