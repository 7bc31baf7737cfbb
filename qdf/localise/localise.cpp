#include "qdf/localise/localise.h"

#include <deque>

#include "qdf/core/documentmembers.h"
#include "qdf/localise/textlines.h"
#include "qdf/localise/translationtable.h"
#include "qdf/support/amapstringtoptr.h"
#include "qdf/support/nothrow.h"
#include "qdf/support/outputdrivers.h"
#include "qdf/support/text.h"

namespace {

class Translations {
 public:
  bool IsEmpty() const { return pairs_.empty(); }

  // A later pair takes the place of a former one with its key.
  void Add(const TranslationPair& pair) {
    void* former = nullptr;
    if (byKey_.Lookup(pair.Key, former) != 0) {
      *static_cast<TranslationPair*>(former) = pair;
      return;
    }
    pairs_.push_back(pair);
    byKey_.SetAt(pair.Key, &pairs_.back());
  }

  // Null when the table has no such key.
  const char* Find(const char* name) const {
    void* pair = nullptr;
    if (byKey_.Lookup(name, pair) == 0) return nullptr;
    return static_cast<const TranslationPair*>(pair)->Translation;
  }

 private:
  std::deque<TranslationPair> pairs_;  // never moves what it holds
  AMapStringToPtr byKey_{10};
};

// A line for which there is no memory is left out, and the others count.
void AddLine(const char* line, Translations& translations) {
  OrOnNoMemory(0, [&] {
    TranslationPair pair;
    if (ReadTableLine(line, pair) == nullptr) translations.Add(pair);
    return 1;
  });
}

template <std::size_t N>
void TranslateField(char (&field)[N], const Translations& translations) {
  char name[N + 1] = {};
  std::memcpy(name, field, N);
  const char* translation = translations.Find(name);
  if (translation != nullptr) SetField(field, translation);
}

template <class Record>
void TranslateList(const APtrArray& list, const Translations& translations) {
  for (int i = 0; i < list.GetSize(); ++i) {
    TranslateField(static_cast<Record*>(list.GetAt(i))->DisplayName, translations);
  }
}

void TranslateColorants(const APtrArray& colorModes, const Translations& translations) {
  for (int i = 0; i < colorModes.GetSize(); ++i) {
    const auto* mode = static_cast<const ColorModeInfo*>(colorModes.GetAt(i));
    for (int j = 0; j < mode->ColorantCount; ++j) {
      TranslateField(mode->Colorants[j].Colorant.DisplayName, translations);
    }
  }
}

void TranslateDocument(APMQDF& document, const Translations& translations) {
  const DocumentLists members(document);
  TranslateList<InkTypeInfo>(members.InkList, translations);
  TranslateList<MediaTypeInfo>(members.MediaList, translations);
  TranslateList<PrintModeInfo>(members.PrintModeList, translations);
  TranslateList<ResolutionInfo>(members.ResolutionList, translations);
  TranslateList<ColorModeInfo>(members.ColorModeList, translations);
  TranslateColorants(members.ColorModeList, translations);
  TranslateList<MediaSourceInfo>(members.MediaSourceList, translations);
  TranslateList<MarginInfo>(members.MarginInfoList, translations);
  TranslateList<MediaSizeInfo>(members.MediaSizeList, translations);
}

}  // namespace

void PMLocalizeQDFByTranslationTable(APMQDF* document) {
  if (document == nullptr) return;
  OrOnNoMemory(0, [&] {
    const AString table = document->GetTranslationTable();
    if (table.GetLength() == 0) return 0;
    AFilePath path = InOutputDrivers(table);
    Translations translations;
    ForEachLine(path, [&](const TextLine& line) { AddLine(line.Text, translations); });
    if (!translations.IsEmpty()) TranslateDocument(*document, translations);
    return 1;
  });
}
