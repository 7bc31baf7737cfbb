#pragma once

// The records of a document as rows of a report, every field of them.

#include <vector>

#include "qdf/core/apmqdf.h"
#include "tool/report.h"

Object MakeRow(const InkTypeInfo& ink);
Object MakeRow(const MediaTypeInfo& media);
Object MakeRow(const PrintModeInfo& printMode);
Object MakeRow(const ResolutionInfo& resolution);
Object MakeRow(const ColorModeInfo& colorMode);
Object MakeRow(const MediaSourceInfo& mediaSource);
Object MakeRow(const MediaSizeInfo& mediaSize);
Object MakeRow(const MarginInfo& margin);

// All records that a query without arguments gives.
template <class Record>
std::vector<Record> AllRecords(APMQDF& document, int (APMQDF::*query)(std::vector<Record>&)) {
  std::vector<Record> records;
  (document.*query)(records);
  return records;
}
