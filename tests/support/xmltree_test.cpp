// Trees as they are read, built and saved.

#include <gtest/gtest.h>

#include "qdf/support/axmltree.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tests/trees.h"

namespace {

TEST(XMLTree, ValuesAreAnElementsOwnText) {
  const std::pair<const char*, const char*> rows[] = {
      {"", ""},
      {" x\ty ", " x\ty "},
      {" \n ", " \n "},
      {"x<!-- y -->z", "xz"},
      {"<!--y--> x", " x"},
      {" a<![CDATA[<&b> ]]>c ", " a<&b> c "},
      {"x<!-- y --> <![CDATA[z]]> ", "x z "},
      {"1<b>2</b>3", "13"},
      {"\n  <b/>\n 1 \n<b/>\n", "\n 1 \n"},
      {"x<!-- y --> <b/> <!-- y -->\n", "x "},
      {"1<?pi 2?>3", "13"},
      {"&lt;&gt;&amp;&quot;&apos;", "<>&\"'"},
      {"&#65;&#x42;&#xe4;&#10;", "AB\xC3\xA4\n"},
      {"\xE4\xFF", "\xE4\xFF"},
      {"a\r\nb\rc", "a\nb\nc"},
  };
  for (const auto& [content, value] : rows) {
    const auto tree = TreeOf("<a>" + std::string(content) + "</a>");
    AXMLTreeNode root;
    EXPECT_NE(tree->getRootNode(root), 0);
    EXPECT_EQ(tree->getValue(root), value) << content;
  }
}

TEST(XMLTree, FindsTheFirstOfANameAndLeavesTheOutputOtherwise) {
  const auto tree = TreeOf(
      "\xEF\xBB\xBF<?xml version='1.0'?><!DOCTYPE Any [<!ENTITY e 'x>'>]><!-- c --><Any>"
      "text<!-- c --><b x='1' y=''/><B x='2'/><?pi?><b x='3'><c/></b><![CDATA[d]]></Any>");
  AXMLTreeNode root;
  AXMLTreeNode child;
  ASSERT_NE(tree->getRootNode(root), 0);
  EXPECT_EQ(tree->getName(root), "Any");
  EXPECT_EQ(tree->getChildCount(root), 3);
  std::string found;
  for (int i = -1; i < 5; ++i) {
    if (tree->getChild(i, root, child) != 0) found += tree->getAttribute(child, "x");
  }
  EXPECT_EQ(found, "123");
  EXPECT_EQ(tree->getName(child), "b");
  EXPECT_NE(tree->getItem("b", child), 0);
  const AXMLTreeNode nothing;
  AXMLTreeNode same = child;
  EXPECT_EQ(tree->getItem("c", same) + tree->getChild("", root, same), 0);
  EXPECT_EQ(tree->getChild(0, nothing, same) + tree->getChild("b", nothing, same), 0);
  EXPECT_EQ(tree->getAttribute(same, "x"), "1");
  EXPECT_EQ(tree->getAttribute(same, "y") + tree->getAttribute(same, "z"), "");
  EXPECT_EQ(tree->getName(nothing) + tree->getValue(nothing), "");
  EXPECT_NE(tree->getChild(2, root, child), 0);
  EXPECT_NE(tree->getChild("c", child, child), 0);
  EXPECT_EQ(tree->getChildCount(child), 0);
  tree->removeAll(0);
  EXPECT_EQ(tree->getRootNode(root), 0);
}

// A child stands behind the others, whatever place is asked for.
TEST(XMLTree, IsSavedInTheOrderOfTheCalls) {
  const TempFolder folder;
  AFilePath path(folder.Path("saved.xml").c_str());
  AXMLTree tree("Root");
  AXMLTreeNode root;
  AXMLTreeNode item;
  AXMLTreeNode child;
  ASSERT_NE(tree.getRootNode(root), 0);
  EXPECT_EQ(tree.getChild(0, root, child), 0);
  ASSERT_NE(tree.addItem(item, "Item", "<&\"'\n\r\t\x01 "), 0);
  EXPECT_NE(tree.getChild(0, root, child), 0) << "an item that wasn't there before";
  tree.setAttribute(item, "Value", "former");
  tree.setAttribute(item, "Value", "<&\"'\n\r\t\x01 ");
  ASSERT_NE(tree.addItem(item, "Group", ""), 0);
  tree.setAttribute(item, "Empty", "");
  for (const char* name : {"a", "b"}) ASSERT_NE(tree.addChild(child, item, name, name, -1), 0);
  ASSERT_NE(tree.getChild(0, item, child), 0);
  ASSERT_NE(tree.addChild(child, item, "last", "", 0), 0);
  ASSERT_NE(tree.addChild(child, child, "below", "x", 7), 0);
  EXPECT_EQ(tree.addChild(child, AXMLTreeNode(), "a", "", -1), 0);
  ASSERT_NE(tree.saveToFile(path), 0);
  EXPECT_EQ(ReadFile(folder.Path("saved.xml")),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<Root>\n"
            "  <Item Value=\"&lt;&amp;&quot;'&#10;&#13;&#09;&#01; \">"
            "&lt;&amp;\"'\n&#13;\t&#01; </Item>\n"
            "  <Group Empty=\"\">\n"
            "    <a>a</a>\n"
            "    <b>b</b>\n"
            "    <last>\n"
            "      <below>x</below>\n"
            "    </last>\n"
            "  </Group>\n"
            "</Root>\n");
  tree.removeAll(0);
  EXPECT_EQ(tree.saveToFile(path), 0) << "without a root";
}

TEST(XMLTree, ReadsBackEveryTextThatItSaves) {
  std::vector<std::string> texts = {"]]>",    "&amp;",        "&#65;", "<!--",
                                    "\r\n\r", "\xEF\xBB\xBF", "",      std::string(100000, '\r')};
  for (int byte = 1; byte < 256; ++byte) {
    const auto c = static_cast<char>(byte);
    texts.insert(texts.end(), {std::string(1, c), std::string(2, c), {' ', c, ' '}, {c, 'x', c}});
  }
  const TempFolder folder;
  AFilePath path(folder.Path("saved.xml").c_str());
  AXMLTree tree("Root");
  AXMLTreeNode item;
  for (const std::string& text : texts) {
    ASSERT_NE(tree.addItem(item, "Item", text.c_str()), 0);
    tree.setAttribute(item, "Value", text.c_str());
  }
  ASSERT_NE(tree.saveToFile(path), 0);
  AXMLTree read("RootElement");
  ASSERT_NE(read.loadFromFile(path, 1), 0) << read.loadFault().Reason;
  AXMLTreeNode root;
  read.getRootNode(root);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    ASSERT_NE(read.getChild(static_cast<int>(i), root, item), 0);
    EXPECT_EQ(std::string(read.getValue(item)), texts[i]);
    EXPECT_EQ(std::string(read.getAttribute(item, "Value")), texts[i]);
  }
}

}  // namespace
