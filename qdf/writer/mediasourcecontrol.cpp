// MediaSource_Control: which sizes each media source offers, and which margins each size allows.

#include <vector>

#include "qdf/core/apmqdf.h"
#include "qdf/writer/element.h"

void APMQDF::PMWriteMediaSourceControlPart(AXMLTree& tree) {
  const CQDFNode& root = MediaSourceTreeRoot;
  if (root.Children.GetSize() == 0) return;
  Element section{tree, {}};
  if (tree.addItem(section.node, "MediaSource_Control", "") == 0) return;
  section.SetDefault("DefaultMediaSourceID", root.Default);
  for (int i = 0; i < root.Children.GetSize(); ++i) {
    section.Add("MediaSource", [&](Element& mediaSource) {
      WriteMediaSourceControlPart(tree, mediaSource.node, ChildAt(root, i));
    });
  }
}

// The margins are those that a host would be answered, so they stand in the order of the list of
// margins, and the first nodes that hold the ids decide.
void APMQDF::WriteMediaSourceControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node) {
  if (node == nullptr || node->IDs.GetSize() == 0) return;
  const int mediaSource = static_cast<int>(node->IDs.GetAt(0));
  const Element source{tree, element};
  source.Set("ID", MakeStringUponIDArray(node->IDs));
  source.SetDefault("DefaultMediaSizeID", node->Default);
  std::vector<MarginInfo> margins;
  for (int i = 0; i < node->Children.GetSize(); ++i) {
    CQDFNode* sizeNode = ChildAt(*node, i);
    if (sizeNode == nullptr || sizeNode->IDs.GetSize() == 0) continue;
    source.Add("MediaSize", [&](const Element& size) {
      size.Set("ID", MakeStringUponIDArray(sizeNode->IDs));
      margins.clear();
      int unused = 0;
      const int mediaSize = static_cast<int>(sizeNode->IDs.GetAt(0));
      GetMarginInfoList(mediaSource, mediaSize, margins, unused);
      ADWordArray ids;
      for (const MarginInfo& margin : margins) ids.Add(static_cast<std::uint32_t>(margin.ID));
      size.Set("MarginIDList", MakeStringUponIDArray(ids));
    });
  }
}
