#pragma once

// AXMLTree holds one XML document in memory, and AXMLTreeNode is a handle to one element of it. The
// XML parser is hidden behind these two.

#include <memory>
#include <vector>

#include "qdf/support/afilepath.h"
#include "qdf/support/astring.h"

class Descriptor;

namespace pugi {
struct xml_node_struct;
}

// A default-made handle refers to nothing. Copies refer to the same element. Emptying, loading or
// destroying the tree leaves its handles dangling.
class AXMLTreeNode {
 public:
  AXMLTreeNode() = default;
  AXMLTreeNode(const AXMLTreeNode&) = default;
  AXMLTreeNode& operator=(const AXMLTreeNode&) = default;
  virtual ~AXMLTreeNode() = default;

 private:
  friend class AXMLTree;
  AXMLTreeNode(pugi::xml_node_struct* element, int depth) : element_(element), depth_(depth) {}

  pugi::xml_node_struct* element_ = nullptr;
  int depth_ = 0;  // of the element, 0 for the root
};

// Why a document could not be loaded. The line and the column count from 1, in bytes; both are 0
// when the file could not be read at all.
struct AXMLFault {
  AString Reason;
  int Line = 0;
  int Column = 0;
  // The process lacked memory or descriptors: that says nothing of the file.
  bool LackedMeans = false;
};

class AXMLTree {
 public:
  // Starts with nothing but a root element of that name.
  explicit AXMLTree(const AString& rootName);
  virtual ~AXMLTree();
  AXMLTree(const AXMLTree&) = delete;
  AXMLTree& operator=(const AXMLTree&) = delete;

  // Replaces the tree by the document in the file. 0 when the file can't be read, isn't well formed
  // or there is no memory for it; the tree is then empty. The bytes of the document pass through as
  // they are: an encoding that it declares isn't looked at. The flag has no meaning.
  int loadFromFile(AFilePath& path, int flag);
  // The same with a file in an open folder, however long its whole path is.
  int loadFromFolder(const Descriptor& folder, const char* name);

  // What was wrong at the last load that gave 0.
  const AXMLFault& loadFault() const;

  // Writes the document to the file, as SaveFileBytes does: the whole text is made first, so that a
  // failure leaves the former file as it was. Lines are indented by two blanks for each level, and
  // an element with text stands on one line. Bytes pass through as they are; a control character
  // becomes a numeric reference where a parser would refuse or change it. So every text and
  // attribute reads back byte for byte.
  //
  // Non-zero on success. 0 when the file can't be written, memory runs out or the document isn't
  // whole: it has no root, or an element or attribute is missing since memory ran out when it was
  // to be added.
  int saveToFile(AFilePath& path) const;

  // Drops all nodes, the root included. The argument has no meaning.
  void removeAll(int);

  // Each of these gives non-zero and sets the output when the element exists; only then does it
  // touch the output, else it gives 0. Only elements count as children; names are compared with
  // case.
  int getRootNode(AXMLTreeNode& root) const;
  // The first child of the root with that name.
  int getItem(const char* name, AXMLTreeNode& item) const;
  // The first child of the parent with that name.
  int getChild(const char* name, AXMLTreeNode parent, AXMLTreeNode& child) const;
  // The child at that position, from 0. Going through the children in order costs one step for
  // each.
  int getChild(int index, AXMLTreeNode parent, AXMLTreeNode& child) const;

  int getChildCount(AXMLTreeNode node) const;
  AString getName(AXMLTreeNode node) const;
  // The element's own text: its character data and CDATA sections joined, blanks kept. Only where
  // child elements stand, what is nothing but blanks between them is layout, not text.
  AString getValue(AXMLTreeNode node) const;
  // Empty when the attribute is missing.
  AString getAttribute(AXMLTreeNode node, const char* name) const;

  // Moves the handle to the next element of that name beside it; 0, and the handle left alone,
  // when there is none. Together with getChild by name this goes through all children of a name.
  int getNext(const char* name, AXMLTreeNode& node) const;
  // The texts of an attribute and of an element, without a copy where the tree holds them in one
  // piece; a text in pieces is joined in `joined`. Valid while the tree and `joined` are.
  const char* attributeText(const AXMLTreeNode& node, const char* name) const;
  const char* valueText(const AXMLTreeNode& node, AString& joined) const;

  // Each of these adds an element with that name and, when it isn't empty, that text, behind the
  // children of the root or of the parent, and gives non-zero and its handle. 0, and nothing added,
  // when the parent's handle refers to nothing or memory runs out. The position has no meaning;
  // callers give -1.
  int addItem(AXMLTreeNode& item, const char* name, const char* value);
  int addChild(AXMLTreeNode& child, AXMLTreeNode parent, const char* name, const char* value,
               int position);
  // Sets or replaces the attribute.
  void setAttribute(AXMLTreeNode node, const char* name, const char* value);

 private:
  struct Document;

  // Where the last access by index to the children of an element stood: one place for each depth,
  // since loops over children nest.
  struct Cursor {
    pugi::xml_node_struct* parent = nullptr;
    pugi::xml_node_struct* child = nullptr;
    int index = 0;
  };
  Cursor& cursorAt(int depth) const;

  // Loads by a procedure that reads the file's bytes and answers as ReadFileBytes does.
  template <class Read>
  int loadBy(Read read);

  // Of an addition: whether there was memory for it. Notes when there wasn't.
  bool stored(bool success);

  std::unique_ptr<Document> document_;
  mutable std::vector<Cursor> cursors_;
  bool whole_ = true;
};
