#pragma once

// The values of one entry of a Definition list: child elements that are found by name. A value that
// isn't there leaves the field as it is.

#include "qdf/support/axmltree.h"
#include "qdf/support/numbers.h"
#include "qdf/support/text.h"

struct Entry {
  AXMLTree& tree;
  AXMLTreeNode element;

  bool Find(const char* name, AString& value) const {
    AXMLTreeNode child;
    if (tree.getChild(name, element, child) == 0) return false;
    value = tree.getValue(child);
    return true;
  }

  void Read(const char* name, int& field) const {
    AString value;
    if (Find(name, value)) field = ReadInt(value);
  }

  template <std::size_t N>
  void Read(const char* name, char (&field)[N]) const {
    AString value;
    if (Find(name, value)) SetField(field, View(value));
  }

  // Numbers that blanks or commas separate, to the targets in the order of the text.
  template <std::size_t N>
  void Read(const char* name, const std::array<double*, N>& numbers) const {
    AString value;
    if (Find(name, value)) ScanDoubles(value, numbers);
  }
};
