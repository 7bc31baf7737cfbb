#include "qdf/core/qdfnode.h"

#include <algorithm>
#include <memory>

#include "qdf/support/ownership.h"
#include "qdf/support/uniqueids.h"

CQDFNode::~CQDFNode() { DeleteItems<CQDFNode>(Children); }

CQDFNode* MakeNodeFromIDs(ADWordArray& source) {
  auto node = std::make_unique<CQDFNode>();
  node->IDs.Copy(source);
  return node.release();
}

int IsIDInArray(std::uint32_t id, ADWordArray& ids) {
  return std::find(ids.begin(), ids.end(), id) != ids.end() ? 1 : 0;
}

void MergeIDArray(ADWordArray& target, ADWordArray& source) {
  if (&target == &source) return;
  UniqueIDs(target).AddAll(source);
}

CQDFNode* AddChildNode(CQDFNode& parent) {
  return AddOwned(parent.Children, std::make_unique<CQDFNode>());
}

CQDFNode* AddChildNode(CQDFNode& parent, ADWordArray& ids) {
  return AddOwned(parent.Children, std::unique_ptr<CQDFNode>(MakeNodeFromIDs(ids)));
}
