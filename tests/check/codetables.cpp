#include "tests/check/codetables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "qdf/support/text.h"
#include "tests/files.h"

namespace {

// The pieces in backticks.
std::vector<std::string> Fragments(const std::string& cell) {
  std::vector<std::string> fragments;
  std::istringstream stream(cell);
  for (std::string between, fragment;
       std::getline(stream, between, '`') && std::getline(stream, fragment, '`');) {
    fragments.push_back(fragment);
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

}  // namespace

CodeTables ReadCodeTables() {
  const std::string page = ReadFile(QDF_EXAMPLES "/../docs/checks.md");
  CodeTables tables;
  const std::size_t begin = page.find("```xml\n") + 7;
  tables.document = page.substr(begin, page.find("```", begin) - begin);
  std::istringstream codes(page.substr(page.find("### ")));
  for (std::string line; std::getline(codes, line);) {
    const std::vector<std::string> cells = CellsOf(line);
    if (cells.size() < 6 || cells[1] == "Code" || cells[1] == "---") continue;
    tables.rows.push_back({cells[1], cells[2], cells[3], Fragments(cells[4]), Fragments(cells[5])});
  }
  return tables;
}

// Each piece takes the place of its counterpart; some stand there already.
std::string TextWith(const CodeTables& tables, const CodeRow& row, Form form) {
  const auto stands = [&](const std::string& piece) {
    return tables.document.find(piece) != std::string::npos;
  };
  const bool isFound = std::all_of(row.found.begin(), row.found.end(), stands);
  if (isFound == (form == Form::kFound)) return tables.document;
  const auto& wanted = form == Form::kFound ? row.found : row.mended;
  const auto& others = form == Form::kFound ? row.mended : row.found;
  std::string text = tables.document;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    const std::string& other = others.at(i);
    const std::size_t at = text.find(other);
    EXPECT_TRUE(at != std::string::npos || stands(wanted[i])) << wanted[i];
    EXPECT_EQ(at, text.rfind(other)) << "it stands twice: " << other;
    if (at != std::string::npos) text.replace(at, other.size(), wanted[i]);
  }
  return text;
}
