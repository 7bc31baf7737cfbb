#include "tool/check/elementpaths.h"

#include <map>
#include <string_view>

#include "tool/check/findings.h"

namespace check {

std::string ElementPaths::Of(const Element& element) {
  std::string path;
  for (Element at = element; at; at = at.Parent()) path.insert(0, '/' + StepOf(at));
  return path;
}

std::string ElementPaths::StepOf(const Element& element) {
  std::string name = Brief(element.Name());
  const Element parent = element.Parent();
  if (!parent) return name;
  if (numbers_.find(element.Identity()) == numbers_.end()) NumberChildren(parent);
  const int number = numbers_[element.Identity()];
  return number == 0 ? name : name + '[' + std::to_string(number) + ']';
}

void ElementPaths::NumberChildren(const Element& parent) {
  std::map<std::string_view, int> seen;
  for (Element child = parent.First(); child; child = child.Next()) {
    numbers_[child.Identity()] = ++seen[child.Name()];
  }
  for (Element child = parent.First(); child; child = child.Next()) {
    if (seen[child.Name()] == 1) numbers_[child.Identity()] = 0;
  }
}

}  // namespace check
