#pragma once

// An element of the document that is being written, and how things are put into it: each behind
// those that are there.

#include <string>

#include "qdf/support/axmltree.h"
#include "qdf/support/text.h"

struct Element {
  AXMLTree& tree;
  AXMLTreeNode node;

  // Adds an element and calls `fill` with it. When it can't be added, what would be in it is left
  // out too.
  template <class Fill>
  void Add(const char* name, Fill fill) const {
    Element child{tree, {}};
    if (tree.addChild(child.node, node, name, "", -1) != 0) fill(child);
  }

  // Adds an element with that text; an empty text gives an empty element.
  void AddText(const char* name, const char* text) const {
    AXMLTreeNode child;
    tree.addChild(child, node, name, text, -1);
  }
  void AddInt(const char* name, int value) const { AddText(name, std::to_string(value).c_str()); }
  template <std::size_t N>
  void AddName(const char* name, const char (&field)[N]) const {
    AddText(name, std::string(FieldText(field)).c_str());
  }

  void Set(const char* attribute, const char* text) const {
    tree.setAttribute(node, attribute, text);
  }
  void SetInt(const char* attribute, int value) const {
    Set(attribute, std::to_string(value).c_str());
  }
  // A default of 0 means that there is none.
  void SetDefault(const char* attribute, int id) const {
    if (id != 0) SetInt(attribute, id);
  }
};
