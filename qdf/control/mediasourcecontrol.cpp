// Reads MediaSource_Control. A MediaSize element names both sizes and margins, for which the tree
// has a level each.

#include "qdf/control/levels.h"
#include "qdf/control/readers.h"
#include "qdf/definition/records.h"
#include "qdf/support/foreach.h"

namespace {

void ReadMediaSize(const AXMLTree& tree, const AXMLTreeNode& element, const LevelIDs& sizeIDs,
                   const LevelIDs& marginIDs, CQDFNode& mediaSource) {
  ADWordArray sizes = ReadIDs(tree, element, "ID", sizeIDs);
  if (sizes.GetSize() == 0) return;
  CQDFNode* mediaSize = AddChildNode(mediaSource, sizes);
  ADWordArray margins = ReadIDs(tree, element, "MarginIDList", marginIDs);
  if (margins.GetSize() == 0) return;
  AddChildNode(*mediaSize, margins)->Default = ReadDefault(tree, element, "DefaultMarginID");
}

}  // namespace

int ReadMediaSourceControl(AXMLTree* tree, APtrArray& mediaSourceList, APtrArray& mediaSizeList,
                           APtrArray& marginInfoList, CQDFNode& root) {
  if (tree == nullptr) return 0;
  AXMLTreeNode section;
  if (tree->getItem("MediaSource_Control", section) == 0) return 1;
  const LevelIDs sourceIDs = IDsOf<MediaSourceInfo>(mediaSourceList);
  const LevelIDs sizeIDs = IDsOf<MediaSizeInfo>(mediaSizeList);
  const LevelIDs marginIDs = IDsOf<MarginInfo>(marginInfoList);
  root.Default = ReadDefault(*tree, section, "DefaultMediaSourceID");
  ForEachChild(*tree, section, "MediaSource", [&](const AXMLTreeNode& element) {
    // A source without known ids makes a node all the same; no walk ever takes it.
    ADWordArray ids = ReadIDs(*tree, element, "ID", sourceIDs);
    CQDFNode* mediaSource = AddChildNode(root, ids);
    mediaSource->Default = ReadDefault(*tree, element, "DefaultMediaSizeID");
    ForEachChild(*tree, element, "MediaSize", [&](const AXMLTreeNode& size) {
      ReadMediaSize(*tree, size, sizeIDs, marginIDs, *mediaSource);
    });
  });
  return 1;
}
