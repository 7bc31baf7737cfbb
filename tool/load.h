#pragma once

// Documents by name, and why one can't be loaded.

#include <memory>
#include <string>

#include "qdf/core/apmqdf.h"
#include "qdf/support/axmltree.h"

struct Document {
  std::string path;  // as messages name it
  std::unique_ptr<APMQDF> content;
};

// A name without "/" means the document of that name in OutputDrivers, or, when only the working
// folder has such a file, that one. Any other name is a path.
std::string DocumentPath(const std::string& name);

// A place in a file as compilers name it: "file:2:6", or the file alone where the fault has no
// line.
std::string PlaceOf(const std::string& file, const AXMLFault& fault);

// Loads as any host does. Throws a Failure whose one line says why there is no document.
Document LoadDocument(const std::string& name);
