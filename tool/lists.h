#pragma once

// What a document's Definition section holds, as parts of a report.

#include <span>

#include "qdf/core/apmqdf.h"
#include "tool/report.h"

struct DocumentList {
  const char* name;  // on the command line
  const char* key;
  const char* label;
  List (*rows)(APMQDF& document);
};

// The places of the lists in kDocumentLists.
enum ListPlace {
  kInks,
  kMedia,
  kPrintModes,
  kResolutions,
  kColorModes,
  kMediaSources,
  kMediaSizes,
  kMargins,
};

extern const std::span<const DocumentList> kDocumentLists;

// Adds the header texts, the limits and the minimum margins.
void AddHeader(APMQDF& document, Object& report);

// Adds the header and all lists.
void AddDefinition(APMQDF& document, Object& report);
