#pragma once

// The form that all lists of Definition have.

#include <vector>

#include "qdf/core/apmqdf.h"
#include "qdf/writer/element.h"

// Adds the list's element to Definition and, for each record that the query gives, an item of that
// name, which `fill` is called with. A list without records is an empty element.
template <class Record, class Fill>
void WriteRecords(APMQDF& document, const Element& definition, const char* listName,
                  const char* itemName, int (APMQDF::*query)(std::vector<Record>&), Fill fill) {
  definition.Add(listName, [&](const Element& list) {
    std::vector<Record> records;
    (document.*query)(records);
    for (const Record& record : records) {
      list.Add(itemName, [&](const Element& item) { fill(item, record); });
    }
  });
}
