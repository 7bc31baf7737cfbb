// qdf localise: a document with its translation table applied.

#include "qdf/localise/localise.h"

#include "qdf/core/documentmembers.h"
#include "qdf/support/text.h"
#include "tool/command.h"
#include "tool/driverfile.h"
#include "tool/files.h"
#include "tool/lists.h"
#include "tool/untranslated.h"
#include "tool/writedocument.h"

namespace {

int CountChanges(const std::vector<ShownName>& before, const std::vector<ShownName>& after) {
  int count = 0;
  for (std::size_t i = 0; i < before.size(); ++i) count += before[i].name != after[i].name ? 1 : 0;
  return count;
}

// A medium is written with the name that it was read with, so that has to become the translation.
void KeepTranslatedMedia(APMQDF& document) {
  const DocumentMembers members(document);
  for (int i = 0; i < members.MediaList.GetSize(); ++i) {
    auto& media = *static_cast<MediaTypeInfo*>(members.MediaList.GetAt(i));
    SetField(media.UnlocalizedName, FieldText(media.DisplayName));
  }
}

// The library passes a table over that it can't read.
void RefuseUnreadable(const std::string& table) {
  if (!Exists(table)) {
    throw Failure(kNoAnswer, table + ": no such file under the working folder, see -C");
  }
  ReadWhole(table);
}

Answer Localise(const Arguments& arguments) {
  const std::string* out = arguments.Find("--output");
  const bool asksForRest = arguments.Has("--untranslated");
  if (out != nullptr && asksForRest) {
    throw Failure(kWrongUsage, "--output and --untranslated don't go together");
  }
  const Document document = LoadDocument(arguments.Get("DOC"));
  APMQDF& content = *document.content;
  const std::string table =
      DriverFilePath(document, content.GetTranslationTable(), "translation table");
  RefuseUnreadable(table);
  Object report{{"document", "Document", document.path}, {"table", "Table file", table}};
  if (asksForRest) {
    AddUntranslated(content, table, report);
    return {report};
  }
  const std::vector<ShownName> names = ShownNames(content);
  PMLocalizeQDFByTranslationTable(&content);
  report.Add({"translated", "Names translated", CountChanges(names, ShownNames(content))});
  if (out != nullptr) {
    KeepTranslatedMedia(content);
    WriteDocument(document, *out, report);
  } else {
    AddDefinition(content, report);
  }
  return {report};
}

constexpr Option kOptions[] = {
    {"DOC", "", "The document", true},
    {"-o,--output", "OUT", "Write the translated document to this path instead of showing it"},
    {"--untranslated", "", "List the names without a translation, and what the table has in vain"},
};

}  // namespace

const Command kLocaliseCommand = {
    "localise",
    "Show or write a document with its display names translated",
    "The translation table is the file in OutputDrivers that the document names. In OUT the media\n"
    "bear their translated names for good: when hosts keep ids of media across updates, update\n"
    "the untranslated document.",
    "qdf localise plot36.qdf\n"
    "  qdf localise plot36.qdf --untranslated\n"
    "  qdf localise plot36.qdf -o translated.qdf",
    kOptions,
    Localise,
};
