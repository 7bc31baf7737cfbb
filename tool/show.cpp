// qdf show: the whole content of a document's Definition.

#include <algorithm>

#include "tool/command.h"
#include "tool/lists.h"
#include "tool/load.h"
#include "tool/suggest.h"

namespace {

// Null for all lists.
const DocumentList* ChooseList(const std::string* name) {
  if (name == nullptr) return nullptr;
  const auto found = std::find_if(kDocumentLists.begin(), kDocumentLists.end(),
                                  [&](const DocumentList& list) { return *name == list.name; });
  if (found != kDocumentLists.end()) return &*found;
  std::vector<std::string> names;
  for (const DocumentList& list : kDocumentLists) names.emplace_back(list.name);
  throw UnknownWord("list", *name, names);
}

Answer Show(const Arguments& arguments) {
  const DocumentList* chosen = ChooseList(arguments.Find("--list"));
  const Document document = LoadDocument(arguments.Get("DOC"));
  Object report{{"document", chosen == nullptr ? "Document" : nullptr, document.path}};
  if (chosen == nullptr) {
    AddDefinition(*document.content, report);
  } else {
    report.Add({chosen->key, chosen->label, chosen->rows(*document.content)});
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
