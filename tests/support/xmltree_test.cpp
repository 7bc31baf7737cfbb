#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <string>

#include "qdf/support/axmltree.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tests/trees.h"

namespace {

using Clock = std::chrono::steady_clock;

std::string RootValue(std::string_view content) {
  const auto tree = TreeOf("<a>" + std::string(content) + "</a>");
  AXMLTreeNode root;
  EXPECT_NE(tree->getRootNode(root), 0);
  return std::string(tree->getValue(root));
}

TEST(XMLTree, ValuesAreAnElementsOwnText) {
  const struct {
    const char* content;
    const char* value;
  } rows[] = {{"", ""},
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
              {"a\r\nb\rc", "a\nb\nc"}};
  for (const auto& row : rows) EXPECT_EQ(RootValue(row.content), row.value) << row.content;
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
  EXPECT_EQ(tree->getItem("c", child), 0);
  EXPECT_EQ(tree->getChild("", root, child), 0);
  const AXMLTreeNode copy = child;
  EXPECT_EQ(tree->getAttribute(copy, "x"), "1");
  EXPECT_EQ(tree->getAttribute(copy, "y") + tree->getAttribute(copy, "z"), "");
  EXPECT_NE(tree->getChild(2, root, child), 0);
  EXPECT_NE(tree->getChild("c", child, child), 0);
  EXPECT_EQ(tree->getChildCount(child), 0);

  const AXMLTreeNode nothing;
  EXPECT_EQ(tree->getChild(0, nothing, child) + tree->getChild("b", nothing, child), 0);
  EXPECT_EQ(tree->getName(nothing) + tree->getValue(nothing), "");
  tree->removeAll(0);
  EXPECT_EQ(tree->getRootNode(root), 0);
}

// Starting over at the first child for each position would take minutes.
TEST(XMLTree, GoesThroughManyChildrenInLoopsThatNest) {
  constexpr int kMany = 100'000;
  std::string text = "<r>";
  for (int i = 0; i < kMany; ++i) text += "<a><b/><c/></a>";
  const auto tree = TreeOf(text + "</r>");
  AXMLTreeNode root;
  AXMLTreeNode outer;
  AXMLTreeNode inner;
  ASSERT_NE(tree->getRootNode(root), 0);
  const auto start = Clock::now();
  int met = 0;
  for (int i = 0; tree->getChild(i, root, outer) != 0; ++i) {
    for (int k = 0; tree->getChild(k, outer, inner) != 0; ++k)
      met += tree->getName(inner) == "c" ? 1 : 0;
  }
  EXPECT_EQ(met, kMany);
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
  EXPECT_NE(tree->getChild(0, root, outer), 0) << "back to the start";
}

TEST(XMLTree, IsBuiltInTheOrderOfTheCalls) {
  AXMLTree tree("Root");
  AXMLTreeNode item;
  AXMLTreeNode child;
  AXMLTreeNode root;
  ASSERT_NE(tree.getRootNode(root), 0);
  EXPECT_EQ(tree.getName(root), "Root");
  ASSERT_NE(tree.addItem(item, "item", ""), 0);
  for (const char* name : {"a", "b", "c"}) ASSERT_NE(tree.addChild(child, item, name, name, -1), 0);
  ASSERT_NE(tree.getChild(1, item, child), 0);
  ASSERT_NE(tree.addChild(child, item, "last", "", 0), 0);
  ASSERT_NE(tree.addChild(child, child, "below", "x", 7), 0);
  tree.setAttribute(item, "x", "1");
  tree.setAttribute(item, "x", "2");
  std::string found(tree.getAttribute(item, "x"));
  for (int i = 0; tree.getChild(i, item, child) != 0; ++i) {
    found.append(" ").append(tree.getName(child)).append("=").append(tree.getValue(child));
  }
  EXPECT_EQ(found, "2 a=a b=b c=c last=");
  EXPECT_EQ(tree.addChild(child, AXMLTreeNode(), "a", "", -1), 0);
}

TEST(XMLTree, SaysWhyAFileIsNoDocument) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  std::filesystem::create_symlink("loop", folder.Path("loop"));
  folder.Write("empty", "");
  folder.Write("cut", "<a>\n <b>\n");
  folder.Write("mixed", "<a>\n  <b x=\"1\" x=\"2\"/>\n</a>");
  const struct {
    const char* name;
    const char* reason;
    int line, column;
  } rows[] = {{"missing", "no such file", 0, 0},
              {"empty/x", "no such file", 0, 0},
              {"", "it is a folder", 0, 0},
              {"pipe", "it is no regular file", 0, 0},
              {"loop", "the links lead nowhere", 0, 0},
              {"empty", "there is no root element", 1, 1},
              {"cut", "this element is not closed", 2, 2},
              {"mixed", "this attribute stands twice", 2, 12}};
  for (const auto& row : rows) {
    AXMLTree tree("RootElement");
    AFilePath path(folder.Path(row.name).c_str());
    EXPECT_EQ(tree.loadFromFile(path, 1), 0) << row.name;
    EXPECT_EQ(tree.loadFault().Reason, row.reason);
    EXPECT_EQ(tree.loadFault().Line, row.line) << row.name;
    EXPECT_EQ(tree.loadFault().Column, row.column) << row.name;
    AXMLTreeNode root;
    EXPECT_EQ(tree.getRootNode(root), 0) << "the placeholder is gone";
  }
}

}  // namespace
