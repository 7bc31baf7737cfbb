// qdf show: the whole content of a document's Definition.

#include <algorithm>

#include "tool/command.h"
#include "tool/load.h"
#include "tool/records.h"
#include "tool/suggest.h"

namespace {

template <auto Query>
struct RowsOf;

template <class Record, int (APMQDF::*Query)(std::vector<Record>&)>
struct RowsOf<Query> {
  static List Make(APMQDF& document) {
    List rows;
    for (const Record& record : AllRecords(document, Query)) rows.emplace_back(MakeRow(record));
    return rows;
  }
};

struct ShownList {
  const char* name;  // for --list
  const char* key;
  const char* label;
  List (*rows)(APMQDF& document);
};

constexpr ShownList kLists[] = {
    {"inks", "inks", "Inks", RowsOf<&APMQDF::GetFullInkTypeList>::Make},
    {"media", "media", "Media", RowsOf<&APMQDF::GetFullMediaTypeList>::Make},
    {"print-modes", "printModes", "Print modes", RowsOf<&APMQDF::GetFullPrintModeList>::Make},
    {"resolutions", "resolutions", "Resolutions", RowsOf<&APMQDF::GetFullResolutionList>::Make},
    {"color-modes", "colorModes", "Colour modes", RowsOf<&APMQDF::GetFullColorModeInfoList>::Make},
    {"media-sources", "mediaSources", "Media sources",
     RowsOf<&APMQDF::GetFullMediaSourceInfoList>::Make},
    {"media-sizes", "mediaSizes", "Media sizes", RowsOf<&APMQDF::GetFullMediaSizeInfoList>::Make},
    {"margins", "margins", "Margins", RowsOf<&APMQDF::GetFullMarginInfoList>::Make},
};

void AddHeader(APMQDF& document, Object& report) {
  double limits[4];
  document.GetMediaSizeLimits(limits[0], limits[1], limits[2], limits[3]);
  // The library hands the margins out turned; here they stand as in the document.
  double margins[4];
  document.GetMinimumMargin(margins[2], margins[3], margins[0], margins[1]);
  const auto four = [](const double(&numbers)[4]) {
    return List{numbers[0], numbers[1], numbers[2], numbers[3]};
  };
  report.Add({"productType", "Product type", static_cast<const char*>(document.GetProdcutType())});
  report.Add({"translationTable", "Translation table",
              static_cast<const char*>(document.GetTranslationTable())});
  report.Add({"customMediaFile", "Custom media file",
              static_cast<const char*>(document.GetCustomMediaFile())});
  report.Add({"mediaSizeLimits", "Media size limits", four(limits)});
  report.Add({"minimumMargins", "Minimum margins", four(margins)});
}

// Null for all lists.
const ShownList* ChooseList(const std::string* name) {
  if (name == nullptr) return nullptr;
  const auto* found = std::find_if(std::begin(kLists), std::end(kLists),
                                   [&](const ShownList& list) { return *name == list.name; });
  if (found != std::end(kLists)) return found;
  std::vector<std::string> names;
  for (const ShownList& list : kLists) names.emplace_back(list.name);
  throw UnknownWord("list", *name, names);
}

Answer Show(const Arguments& arguments) {
  const ShownList* chosen = ChooseList(arguments.Find("--list"));
  const Document document = LoadDocument(arguments.Get("DOC"));
  Object report{{"document", chosen == nullptr ? "Document" : nullptr, document.path}};
  if (chosen == nullptr) AddHeader(*document.content, report);
  for (const ShownList& list : kLists) {
    if (chosen != nullptr && chosen != &list) continue;
    report.Add({list.key, list.label, list.rows(*document.content)});
  }
  return {report};
}

constexpr Option kOptions[] = {
    {"DOC", "", "The document", true},
    {"--list", "NAME", "Show this list only"},
};

}  // namespace

const Command kShowCommand = {
    "show",
    "Show the header and the lists of a document",
    "Lists are inks, media, print-modes, resolutions, color-modes, media-sources, media-sizes and\n"
    "margins. Numbers have no unit and stand in the order of the document.",
    "qdf show plot36.qdf --list media",
    kOptions,
    Show,
};
