#pragma once

// A list of objects as an aligned table, with a header of their labels.

#include <string>
#include <vector>

#include "tool/printable.h"
#include "tool/report.h"

// The list when it is made of objects, else null.
const List* AsRows(const Value& value);

// A list of objects within a row, such as the colorants of a colour mode, takes columns of its own,
// and lines below the row's first as it needs.
class Table {
 public:
  // At least one row; each has the labels of the first.
  explicit Table(const List& rows);

  // The header is line 0.
  std::size_t LineCount() const { return lines_.size(); }
  std::string Line(std::size_t line) const;

 private:
  struct Cell {
    Printable shown;
    bool number = true;  // so are empty cells and headers: they don't decide how a column aligns
  };
  struct Column {
    int width = 0;
    bool numbers = true;
  };

  static Cell MakeCell(const Value& value);
  void AddHeader(const Object& row);
  // Fills cells from this line and column on and answers the column behind them.
  std::size_t AddRow(const Object& row, std::size_t line, std::size_t column);
  void Measure();

  std::vector<Column> columns_;
  std::vector<std::vector<Cell>> lines_;
};
