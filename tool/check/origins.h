#pragma once

// Which elements of a file the nodes of its document come from.

#include <string>

#include "tool/check/elementpaths.h"
#include "tool/check/facts.h"
#include "tool/check/xmlview.h"

namespace check {

struct Origin {
  std::string path;   // of the element; empty when it isn't known
  Position position;  // of its name
};

class Origins {
 public:
  // Reads the file. Of one that can't be read nothing is known: both trees are empty then.
  explicit Origins(const std::string& path);

  // Trees of the same shape as those of the document, down to colour modes and to margins. They
  // lack the nodes of media sources without ids, which no walk ever takes.
  const ElementNode& Control() const { return kept_.control; }
  const ElementNode& Sources() const { return kept_.sources; }

  // Of a node of one of the trees, or of none.
  Origin Of(const ElementNode* node);

 private:
  XMLView document_;
  Kept kept_;
  ElementPaths paths_;
};

}  // namespace check
