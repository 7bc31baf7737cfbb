// Any bytes as a translation table, and a document localised with it, which has the translations
// that the table holds and all other names as they were.

#include <map>
#include <memory>

#include "fuzz/fuzzing.h"
#include "qdf/core/documentmembers.h"
#include "qdf/localise/localise.h"
#include "qdf/localise/translationtable.h"
#include "tests/documents.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const TempFolder folder;
  static const auto document =
      Load({.InkList = Entries("1=ab;2=Plain Paper;3=" + std::string(300, 'x')),
            .Definition = "<TranslationTable>table.txt</TranslationTable>"});
  static const APtrArray& inks = DocumentMembers(*document).InkList;
  static const auto former = Records<InkTypeInfo>(inks);
  const WorkingFolder in(folder.Path());
  AFilePath path(folder.Write("OutputDrivers/table.txt", TextOf(data, size)).c_str());
  std::map<std::string, std::string> table;
  const int result = ReadTranslationTable(path, [&](const TableLine& line) {
    if (line.Fault == nullptr) table[std::string(line.Pair.Key)] = line.Pair.Translation;
  });
  Require(result != 0, "a table is read");
  Require(!table.contains(""), "no pair has an empty key");
  PMLocalizeQDFByTranslationTable(document.get());
  for (int i = 0; i < inks.GetSize(); ++i) {
    auto& ink = *static_cast<InkTypeInfo*>(inks.GetAt(i));
    const InkTypeInfo& before = former[static_cast<std::size_t>(i)];
    const auto found = table.find(Str(before.DisplayName));
    const std::string name = found != table.end() ? found->second : Str(before.DisplayName);
    Require(!name.empty(), "no translation is empty");
    RequireEqual(name.substr(0, sizeof ink.DisplayName), Str(ink.DisplayName), "a translated name");
    ink = before;
  }
  return 0;
}
