// Control_Definition: the levels of the control tree in one form, and the leaves under the last.

#include <string>

#include "qdf/core/apmqdf.h"
#include "qdf/support/text.h"
#include "qdf/writer/element.h"

namespace {

// Joins ids with commas.
AString IDListText(const ADWordArray& ids) {
  std::string text;
  for (const std::uint32_t id : ids) {
    if (!text.empty()) text += ',';
    text += std::to_string(static_cast<int>(id));
  }
  return text.c_str();
}

void SetIDs(const Element& element, const CQDFNode& node) {
  if (node.IDs.GetSize() > 0) element.Set("ID", IDListText(node.IDs));
}

// What is under a level's node.
struct NextLevel {
  const char* defaultAttribute;  // on the element of the node itself
  const char* element;
  void (APMQDF::*write)(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node);
};

// Puts a node into its element. A child that isn't there gives an empty element.
void WriteLevel(APMQDF& document, const Element& element, const CQDFNode* node,
                const NextLevel& next) {
  if (node == nullptr) return;
  element.SetDefault(next.defaultAttribute, node->Default);
  SetIDs(element, *node);
  for (int i = 0; i < node->Children.GetSize(); ++i) {
    element.Add(next.element, [&](Element& child) {
      (document.*next.write)(child.tree, child.node, ChildAt(*node, i));
    });
  }
}

// Null for what is no index of the list.
const AString* NameAt(const AStringArray& names, int index) {
  return index >= 0 && index < names.GetSize() ? &names.ElementAt(index) : nullptr;
}

bool IsGiven(const AString* name) { return name != nullptr && name->GetLength() > 0; }

// Calls `write` with the name behind each id of a leaf, once for repeated ids.
template <class Write>
void ForEachName(CQDFNode& leaf, const AStringArray& names, Write write) {
  ADWordArray ids;
  MergeIDArray(ids, leaf);
  for (const std::uint32_t id : ids) {
    if (const AString* name = NameAt(names, static_cast<int>(id))) write(*name);
  }
}

void WriteProfiles(const Element& colorMode, CQDFNode& leaf, const AStringArray& names) {
  ForEachName(leaf, names, [&](const AString& name) { colorMode.AddText("ICCProfile", name); });
  if (const AString* name = NameAt(names, leaf.Default)) colorMode.Set("DefaultICCProfile", *name);
}

void WriteDithers(const Element& list, CQDFNode& leaf, const AStringArray& names) {
  const AString* preselected = NameAt(names, leaf.Default);
  if (IsGiven(preselected)) list.Set("DefaultDither", *preselected);
  bool all = false;
  AString upper;
  ForEachName(leaf, names, [&](const AString& name) {
    if (name.CompareNoCase("ALL") == 0) {
      all = true;
      return;
    }
    upper = name;
    upper.MakeUpper();
    list.Add("Dither", [&](const Element& dither) { dither.Set("Name", upper); });
  });
  list.SetInt("SupportAll", all ? 1 : 0);
}

}  // namespace

AString APMQDF::MakeStringUponIDArray(ADWordArray& ids) { return IDListText(ids); }

// One ink node is all that a written document holds: the first.
void APMQDF::PMWriteControlPart(AXMLTree& tree) {
  if (ControlTreeRoot.Children.GetSize() == 0) return;
  const CQDFNode* ink = ChildAt(ControlTreeRoot, 0);
  if (ink == nullptr) return;
  Element section{tree, {}};
  if (tree.addItem(section.node, "Control_Definition", "") == 0) return;
  section.Add("Ink", [&](const Element& element) {
    WriteLevel(*this, element, ink, {"DefaultMedia", "Media", &APMQDF::WriteMediaControlPart});
  });
}

void APMQDF::WriteMediaControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node) {
  WriteLevel(*this, {tree, element}, node,
             {"DefaultPrintMode", "PrintMode", &APMQDF::WritePrintModeControlPart});
}

void APMQDF::WritePrintModeControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node) {
  WriteLevel(*this, {tree, element}, node,
             {"DefaultResolution", "Resolution", &APMQDF::WriteResolutionControlPart});
}

void APMQDF::WriteResolutionControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node) {
  WriteLevel(*this, {tree, element}, node,
             {"DefaultColorMode", "ColorMode", &APMQDF::WriteColorModeControlPart});
}

// Leaves behind the first two aren't written: the format has no place for them.
void APMQDF::WriteColorModeControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node) {
  if (node == nullptr) return;
  ReadDithersOf(*node);
  const Element colorMode{tree, element};
  SetIDs(colorMode, *node);
  const AString* setting = NameAt(OEMInfoList, node->Default);
  if (IsGiven(setting)) colorMode.AddText("PrinterSpecificSetting", *setting);

  // A leaf that isn't there counts as one without names.
  CQDFNode none;
  none.Default = -1;
  const auto leafAt = [&](ColorModeLeaf place) -> CQDFNode& {
    CQDFNode* leaf = ChildAt(*node, place);
    return leaf != nullptr ? *leaf : none;
  };
  if (node->Children.GetSize() <= kProfileLeaf) return;
  WriteProfiles(colorMode, leafAt(kProfileLeaf), ICCProfileList);
  if (node->Children.GetSize() <= kDitherLeaf) return;
  colorMode.Add("DitherList", [&](const Element& list) {
    WriteDithers(list, leafAt(kDitherLeaf), DitherNameList);
  });
}
