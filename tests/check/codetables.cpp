#include "tests/check/codetables.h"

#include <gtest/gtest.h>

#include <sstream>

#include "qdf/support/text.h"
#include "tests/files.h"

namespace {

std::string Between(const std::string& text, const std::string& begin, const std::string& end) {
  const std::size_t from = text.find(begin) + begin.size();
  return text.substr(from, text.find(end, from) - from);
}

// The pieces in backticks.
std::vector<std::string> Fragments(const std::string& cell) {
  std::vector<std::string> fragments;
  std::size_t open = cell.find('`');
  while (open != std::string::npos) {
    const std::size_t close = cell.find('`', open + 1);
    fragments.push_back(cell.substr(open + 1, close - open - 1));
    open = cell.find('`', close + 1);
  }
  return fragments;
}

// What stands between the bars of a line of a table; the first is empty.
std::vector<std::string> CellsOf(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream stream(line);
  for (std::string cell; std::getline(stream, cell, '|');) cells.emplace_back(Trimmed(cell));
  return cells;
}

// The document with each of these pieces in it, which takes the place of the other if need be.
std::string With(std::string document, const std::vector<std::string>& wanted,
                 const std::vector<std::string>& others) {
  EXPECT_EQ(wanted.size(), others.size());
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    const std::size_t at = document.find(others[i]);
    if (at == std::string::npos) {
      EXPECT_NE(document.find(wanted[i]), std::string::npos) << wanted[i];
      continue;
    }
    EXPECT_EQ(document.find(others[i], at + 1), std::string::npos) << others[i];
    document.replace(at, others[i].size(), wanted[i]);
  }
  return document;
}

bool Holds(const std::string& document, const std::vector<std::string>& pieces) {
  for (const std::string& piece : pieces) {
    if (document.find(piece) == std::string::npos) return false;
  }
  return true;
}

}  // namespace

CodeTables ReadCodeTables() {
  const std::string page = ReadFile(QDF_EXAMPLES "/../docs/checks.md");
  CodeTables tables;
  tables.document = Between(page, "```xml\n", "```");
  std::istringstream codes(page.substr(page.find("### ")));
  for (std::string line; std::getline(codes, line);) {
    const std::vector<std::string> cells = CellsOf(line);
    if (cells.size() < 6 || cells[1] == "Code" || cells[1] == "---") continue;
    tables.rows.push_back({cells[1], cells[2], cells[3], Fragments(cells[4]), Fragments(cells[5])});
  }
  return tables;
}

// Where the document has the pieces that are wanted already, it stays as it is.
std::string FoundText(const CodeTables& tables, const CodeRow& row) {
  const bool has = Holds(tables.document, row.found);
  return has ? tables.document : With(tables.document, row.found, row.mended);
}

std::string MendedText(const CodeTables& tables, const CodeRow& row) {
  const bool has = !Holds(tables.document, row.found);
  return has ? tables.document : With(tables.document, row.mended, row.found);
}
