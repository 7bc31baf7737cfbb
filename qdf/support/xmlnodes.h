#pragma once

// What the nodes of the parser mean to whoever reads a document, for the XML tree and for those who
// walk through a file beside it.

#include <pugixml.hpp>

#include "qdf/support/astring.h"

// How a document is parsed. `splitsText` as the rules of well-formed XML find it.
unsigned int XMLParseOptions(bool splitsText);

inline bool IsElement(const pugi::xml_node& node) { return node.type() == pugi::node_element; }

inline bool IsText(const pugi::xml_node& node) {
  return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

// The node itself when it is an element, else the next sibling that is one; null when none is.
pugi::xml_node ElementFrom(pugi::xml_node node);

// The texts and CDATA sections of the element joined, without the white space that only lays out
// child elements.
AString OwnText(const pugi::xml_node& element);
