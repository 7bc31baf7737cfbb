#pragma once

// A document goes into a file, and the person hears what that lost.

#include "tool/load.h"
#include "tool/report.h"

// Writes the document to the path and adds that, and what the written form no longer holds, to the
// report. Throws a Failure, with every file as it was, when that can't be done, and when the path
// leads to the document's translation table or custom media file. It may lead to the document.
void WriteDocument(const Document& document, const std::string& path, Object& report);
