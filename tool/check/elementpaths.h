#pragma once

#include <string>
#include <unordered_map>

#include "tool/check/xmlview.h"

namespace check {

// Tells paths of elements, as in "/QDF_Info/Definition/MediaList/MediaDef[2]": an element has a
// number, from 1, among the children of its name when it isn't the only one. Long names are
// shortened.
class ElementPaths {
 public:
  std::string Of(const Element& element);

 private:
  std::string StepOf(const Element& element);
  void NumberChildren(const Element& parent);

  // 0 for the only one of its name, for all children of the parents that a path led through.
  std::unordered_map<const void*, int> numbers_;
};

}  // namespace check
