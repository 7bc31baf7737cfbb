#pragma once

// How a document's display names and its translation table miss each other.

#include <string>
#include <vector>

#include "qdf/core/apmqdf.h"
#include "tool/report.h"

// A display name in a list of the document.
struct ShownName {
  const char* key;
  const char* label;
  int id;  // of the list's entry
  std::string name;
};

// All that a table may translate, in the order of the lists; colorants follow their colour mode.
std::vector<ShownName> ShownNames(APMQDF& document);

// Adds the names for which the table has no entry, the entries that no name uses and the lines that
// don't count. The document isn't translated yet, and the table can be read.
void AddUntranslated(APMQDF& document, const std::string& table, Object& report);
