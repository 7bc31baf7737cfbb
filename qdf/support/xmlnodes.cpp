#include "qdf/support/xmlnodes.h"

#include "qdf/support/text.h"

namespace {

bool IsLayout(const pugi::xml_node& node) {
  return node.type() == pugi::node_pcdata && Trimmed(node.value()).empty();
}

}  // namespace

// White space is text where it is all that an element holds; elsewhere only where it may be a piece
// of a text that is split. Nodes for the layout between elements would cost much and tell nothing.
unsigned int XMLParseOptions(bool splitsText) {
  return pugi::parse_default | (splitsText ? pugi::parse_ws_pcdata : pugi::parse_ws_pcdata_single);
}

pugi::xml_node ElementFrom(pugi::xml_node node) {
  while (node && !IsElement(node)) node = node.next_sibling();
  return node;
}

AString OwnText(const pugi::xml_node& element) {
  const pugi::xml_node first = element.first_child();
  if (IsText(first) && !first.next_sibling()) return first.value();
  AString value;
  AString run;  // what stands between two child elements, also in pieces
  bool isLayout = true;
  bool hasElements = false;
  for (const pugi::xml_node part : element.children()) {
    if (IsText(part)) {
      run += part.value();
      isLayout = isLayout && IsLayout(part);
    } else if (IsElement(part)) {
      hasElements = true;
      if (!isLayout) value += run;
      run.Empty();
      isLayout = true;
    }
  }
  if (!isLayout || !hasElements) value += run;
  return value;
}
