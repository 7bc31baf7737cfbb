#pragma once

// What a document looks like when it is written.

#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <string>
#include <vector>

#include "tests/documents.h"
#include "tests/files.h"

// The bytes of the file.
inline std::string Written(APMQDF& document) {
  const TempFolder folder;
  AFilePath path(folder.Path("written.qdf").c_str());
  document.PMWriteQDF(path);
  return ReadFile(folder.Path("written.qdf"));
}

// An element in short form: "Name(attribute=value ...)=text" or "Name(...){children}".
inline std::string Short(const pugi::xml_node& element) {
  std::vector<std::string> attributes;
  for (const auto& each : element.attributes()) {
    attributes.push_back(Join({each.name(), each.value()}, "="));
  }
  std::vector<std::string> children;
  for (const auto& each : element.children()) {
    if (each.type() == pugi::node_element) children.push_back(Short(each));
  }
  std::string text = element.name();
  if (!attributes.empty()) text.append("(").append(Join(attributes, " ")).append(")");
  if (!children.empty()) return text.append("{").append(Join(children, " ")).append("}");
  const std::string value = element.child_value();
  return value.empty() ? text : text.append("=").append(value);
}

// The first element of that name in a written file.
inline std::string Part(const std::string& written, const std::string& name) {
  pugi::xml_document tree;
  tree.load_string(written.c_str());
  return Short(tree.find_node([&](const pugi::xml_node& node) { return node.name() == name; }));
}
