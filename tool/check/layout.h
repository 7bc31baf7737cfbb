#pragma once

// What was found in several documents, laid out for people and for programs.

#include <string>
#include <vector>

#include "tool/check/examine.h"
#include "tool/report.h"

namespace check {

struct Examined {
  std::string path;  // as messages name it
  Examination examination;
};

// The number of findings of that severity.
std::size_t CountOf(const Examined& document, Severity severity);

// A line for each finding, `FILE:LINE:COLUMN: warning: sentence [code]`, its hint below it, and a
// line for each document. With context each shows the line of the file and where in it.
std::string TextOf(const std::vector<Examined>& documents, bool context);

// An object for each document and one for each finding. Lines and columns count from 1, columns and
// lengths in bytes.
Object JsonOf(const std::vector<Examined>& documents);

// A SARIF log of version 2.1.0. Its columns count in UTF-16 code units.
Object SarifOf(const std::vector<Examined>& documents);

}  // namespace check
