#pragma once

// docs/checks.md as the tests read it: the document that all examples belong to, and a row for each
// code.

#include <string>
#include <vector>

struct CodeRow {
  std::string code, severity, meaning;
  // Pieces of the document that give the finding, and those that take their place when it is
  // mended. Empty where the page has no example.
  std::vector<std::string> found, mended;
};

struct CodeTables {
  std::string document;
  std::vector<CodeRow> rows;
};

CodeTables ReadCodeTables();

// The document with the finding of a row, and the mended one.
std::string FoundText(const CodeTables& tables, const CodeRow& row);
std::string MendedText(const CodeTables& tables, const CodeRow& row);
