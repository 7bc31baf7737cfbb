#pragma once

// The abilities of a document's printer in the form that print servers use, a PPD.

#include <string>

#include "qdf/core/apmqdf.h"

// How much of a document a PPD tells.
enum class PPDContent {
  Choices,      // the entries of all lists, and the profile of each combination
  Combinations  // also the printer's setting and each dither with its RIP resolution
};

// The text of the PPD. The keywords and values stand for ids of the document: "Media" and "M3".
std::string MakePPD(APMQDF& document, PPDContent content);
