#pragma once

// Documents by name, and why one can't be loaded.

#include <memory>
#include <string>

#include "qdf/core/apmqdf.h"

struct Document {
  std::string path;  // as messages name it
  std::unique_ptr<APMQDF> content;
};

// A name without "/" means the document of that name in OutputDrivers, or, when only the working
// folder has such a file, that one. Any other name is a path.
std::string DocumentPath(const std::string& name);

// Loads as any host does. Throws a Failure whose one line says why there is no document.
Document LoadDocument(const std::string& name);
