#include "tool/check/origins.h"

#include "tool/check/rules.h"

namespace check {

Origins::Origins(const std::string& path) {
  if (document_.Load(path.c_str()).reason != nullptr) return;
  Findings ignored(document_.Bytes());
  kept_ = CheckKept(document_, ignored);
}

Origin Origins::Of(const ElementNode* node) {
  if (node == nullptr || !node->element) return {};
  const Element& element = node->element;
  return {paths_.Of(element), document_.Bytes().PositionOf(element.NamePlace().begin)};
}

}  // namespace check
