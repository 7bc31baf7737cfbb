#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "qdf/support/axmltree.h"
#include "tests/files.h"

namespace {

AFilePath PathIn(const TempFolder& folder) { return AFilePath(folder.Path("saved.xml").c_str()); }

// One element for each text, which also has it as an attribute.
void AddTexts(AXMLTree& tree, const std::vector<std::string>& texts) {
  AXMLTreeNode item;
  for (const std::string& text : texts) {
    ASSERT_NE(tree.addItem(item, "Item", text.c_str()), 0);
    tree.setAttribute(item, "Value", text.c_str());
  }
}

TEST(XMLSave, WritesLinesOfTextElementsAndIndentation) {
  const TempFolder folder;
  AFilePath path = PathIn(folder);
  AXMLTree tree("Root");
  AddTexts(tree, {"", "<&\"'\n\r\t\x01 "});
  AXMLTreeNode group;
  AXMLTreeNode child;
  tree.addItem(group, "Group", "");
  tree.addChild(child, group, "Child", "text", -1);
  ASSERT_NE(tree.saveToFile(path), 0);
  EXPECT_EQ(ReadFile(folder.Path("saved.xml")),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<Root>\n"
            "  <Item Value=\"\" />\n"
            "  <Item Value=\"&lt;&amp;&quot;'&#10;&#13;&#09;&#01; \">"
            "&lt;&amp;\"'\n&#13;\t&#01; </Item>\n"
            "  <Group>\n"
            "    <Child>text</Child>\n"
            "  </Group>\n"
            "</Root>\n");
  tree.removeAll(0);
  EXPECT_EQ(tree.saveToFile(path), 0) << "without a root";
}

TEST(XMLSave, EveryTextReadsBack) {
  std::vector<std::string> texts = {
      "]]>", "&amp;", "&#65;", "<!--", "\r\n\r", "\xEF\xBB\xBF", std::string(100000, '\r')};
  for (int byte = 1; byte < 256; ++byte) {
    const auto c = static_cast<char>(byte);
    texts.insert(texts.end(), {std::string(1, c), std::string(2, c), {' ', c, ' '}, {c, 'x', c}});
  }
  const TempFolder folder;
  AFilePath path = PathIn(folder);
  AXMLTree tree("Root");
  AddTexts(tree, texts);
  ASSERT_NE(tree.saveToFile(path), 0);
  AXMLTree read("RootElement");
  ASSERT_NE(read.loadFromFile(path, 1), 0) << read.loadFault().Reason;
  AXMLTreeNode root;
  AXMLTreeNode item;
  read.getRootNode(root);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    ASSERT_NE(read.getChild(static_cast<int>(i), root, item), 0);
    EXPECT_EQ(std::string(read.getValue(item)), texts[i]);
    EXPECT_EQ(std::string(read.getAttribute(item, "Value")), texts[i]);
  }
}

}  // namespace
