#include "tool/reporttable.h"

#include <algorithm>

#include "tool/reportline.h"

namespace {

constexpr std::size_t kGap = 2;  // between columns

}  // namespace

const List* AsRows(const Value& value) {
  const List* list = AsList(value);
  return list != nullptr && !list->empty() && AsObject(list->front()) != nullptr ? list : nullptr;
}

Table::Table(const List& rows) {
  lines_.emplace_back();
  AddHeader(*AsObject(rows.front()));
  for (const Value& row : rows) AddRow(*AsObject(row), lines_.size(), 0);
  Measure();
}

std::string Table::Line(std::size_t line) const {
  std::string text;
  for (std::size_t i = 0; i < columns_.size() && i < lines_[line].size(); ++i) {
    const Printable& shown = lines_[line][i].shown;
    const auto missing = static_cast<std::size_t>(columns_[i].width - shown.columns);
    text.append(i > 0 ? kGap : 0, ' ');
    if (columns_[i].numbers) text.append(missing, ' ');
    text += shown.text;
    if (!columns_[i].numbers) text.append(missing, ' ');
  }
  return text.erase(text.find_last_not_of(' ') + 1);
}

Table::Cell Table::MakeCell(const Value& value) {
  const bool number = std::holds_alternative<std::int64_t>(value.data) ||
                      std::holds_alternative<double>(value.data);
  return {MakePrintable(LineText(value)), number};
}

void Table::AddHeader(const Object& row) {
  for (const Field& field : row.fields) {
    if (field.label == nullptr) continue;
    if (const List* inner = AsRows(field.Shown())) {
      AddHeader(*AsObject(inner->front()));
    } else {
      lines_.front().push_back({MakePrintable(field.label), true});
    }
  }
}

std::size_t Table::AddRow(const Object& row, std::size_t line, std::size_t column) {
  if (line >= lines_.size()) lines_.resize(line + 1);
  for (const Field& field : row.fields) {
    if (field.label == nullptr) continue;
    const List* inner = AsRows(field.Shown());
    if (inner == nullptr) {
      if (column >= lines_[line].size()) lines_[line].resize(column + 1);
      lines_[line][column++] = MakeCell(field.Shown());
      continue;
    }
    std::size_t behind = column;
    for (std::size_t i = 0; i < inner->size(); ++i) {
      behind = AddRow(*AsObject((*inner)[i]), line + i, column);
    }
    column = behind;
  }
  return column;
}

void Table::Measure() {
  columns_.resize(lines_.front().size());
  for (const std::vector<Cell>& line : lines_) {
    for (std::size_t i = 0; i < columns_.size() && i < line.size(); ++i) {
      columns_[i].width = std::max(columns_[i].width, line[i].shown.columns);
      columns_[i].numbers = columns_[i].numbers && line[i].number;
    }
  }
}
