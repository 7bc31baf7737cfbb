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

enum class Form { kFound, kMended };

// The document with the finding of a row, or the mended one.
std::string TextWith(const CodeTables& tables, const CodeRow& row, Form form);
