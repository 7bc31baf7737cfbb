#include "tool/lists.h"

#include "tool/records.h"

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

constexpr DocumentList kLists[] = {
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

}  // namespace

const std::span<const DocumentList> kDocumentLists = kLists;

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

void AddDefinition(APMQDF& document, Object& report) {
  AddHeader(document, report);
  for (const DocumentList& list : kLists) report.Add({list.key, list.label, list.rows(document)});
}
