// The search with indexes finds what the plain one does, the way back included.

#include "qdf/query/treewalk.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(TreeWalk, FindsTheSamePathsWithIndexes) {
  std::minstd_rand random(7);
  const auto below = [&](unsigned int end) { return static_cast<std::uint32_t>(random() % end); };
  CQDFNode root;
  CQDFNode* ink = AddChildNode(root);
  ink->IDs.Add(1);
  // Each id stands in several nodes; many of them lead nowhere, some not even to a child.
  for (int i = 0; i < 300; ++i) {
    CQDFNode* medium = AddChildNode(*ink);
    for (std::uint32_t n = below(4); n > 0; --n) medium->IDs.Add(below(150));
    for (std::uint32_t n = below(3); n > 0; --n) AddChildNode(*medium)->IDs.Add(below(5));
  }
  const ChildIndexes indexes(root);
  int found = 0;
  for (int medium = 0; medium < 150; ++medium) {
    for (int printMode = 0; printMode < 5; ++printMode) {
      const CQDFNode* plain = FindPath(root, {1, medium, printMode});
      EXPECT_EQ(FindPath(root, {1, medium, printMode}, &indexes), plain);
      found += plain != nullptr ? 1 : 0;
    }
  }
  EXPECT_GT(found, 100);
  EXPECT_LT(found, 700);
}

}  // namespace
