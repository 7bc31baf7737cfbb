#pragma once

// Trees out of texts, for tests that reach into the library: it keeps its trees to itself.

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

#include "qdf/support/axmltree.h"
#include "tests/files.h"

// The tree of a text, a test failure with the reason when it isn't well formed.
inline std::unique_ptr<AXMLTree> TreeOf(std::string_view text) {
  const TempFolder folder;
  AFilePath path(folder.Write("tree.xml", text).c_str());
  auto tree = std::make_unique<AXMLTree>("RootElement");
  if (tree->loadFromFile(path, 1) == 0) ADD_FAILURE() << tree->loadFault().Reason << ": " << text;
  return tree;
}
