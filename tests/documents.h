#pragma once

// Documents out of short texts, and their answers as short texts to compare with a literal.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "qdf/core/apmqdf.h"
#include "qdf/support/text.h"

// The entries of a list: "1;2=Plain Paper;3=Bond/bond" gives three, each with its ID and, behind
// "=", its DisplayName and, behind "/", its InternalName. `more` is put into each entry.
std::string Entries(std::string_view text, std::string_view more = {});

// The same with "600" or "300x600" behind "=", which becomes Value and DisplayName.
std::string Resolutions(std::string_view text);

// The same as Entries, for colour modes of one black colorant each.
std::string ColorModes(std::string_view text);

// A tree in the form that Dump has, such as ">2[1>11[10,11];2>12[12>20]]", as Control_Definition or
// as MediaSource_Control. The ids of a node may be any id list text without ">", "[", "]" and ";".
// Each colour mode gets `leaves` as its content and the attributes of `more`.
std::string Control(std::string_view tree, std::string_view leaves = {},
                    std::string_view more = {});
std::string SourceControl(std::string_view tree);

// A smallest complete document; each member may be replaced. The lists hold what stands inside
// their elements, and three of them aren't there without it, `Definition` more children of
// Definition, the others whole elements.
struct DocumentText {
  std::string InkList = Entries("1");
  std::string MediaList = Entries("1");
  std::string PrintModeList = Entries("1");
  std::string ResolutionList = Entries("1");
  std::string ColorModeList = ColorModes("1");
  std::string MediaSourceList{};
  std::string MediaSizeList{};
  std::string MarginInfoList{};
  std::string Definition{};
  std::string Control{};
  std::string SourceControl{};

  std::string Text() const;
};

// Null, as for any host, when the document is refused.
std::unique_ptr<APMQDF> LoadFile(const std::string& path);
std::unique_ptr<APMQDF> LoadText(std::string_view text);
std::unique_ptr<APMQDF> Load(const DocumentText& document);

std::string Join(const std::vector<std::string>& texts, std::string_view between);
// The text with `to` wherever it holds `from`.
std::string Replaced(std::string text, std::string_view from, std::string_view to);
// The pieces between "|"; one piece, an empty one, of an empty text.
std::vector<std::string> Split(std::string_view text);

// "1,2>5[10;11]": the ids, behind ">" a Default that isn't 0, in brackets its children.
std::string Dump(const CQDFNode& node);
std::string Dump(const ADWordArray& ids);
// The texts with "|" between them.
std::string Dump(const AStringArray& texts);
std::string Dump(const std::vector<AString>& texts);

// The text of a fixed field.
template <std::size_t N>
std::string Str(const char (&field)[N]) {
  return std::string(FieldText(field));
}

// "10,12,13": the ids of records.
template <class Record>
std::string IDs(const std::vector<Record>& records) {
  std::vector<std::string> ids;
  for (const Record& record : records) ids.push_back(std::to_string(record.ID));
  return Join(ids, ",");
}

// The records that a document's list holds.
template <class Record>
std::vector<Record> Records(const APtrArray& list) {
  std::vector<Record> records;
  for (int i = 0; i < list.GetSize(); ++i) {
    records.push_back(*static_cast<const Record*>(list.GetAt(i)));
  }
  return records;
}

// What a question with these ids adds to an empty vector.
template <class Record, class Ask, class... ID>
std::vector<Record> Asked(APMQDF& document, Ask ask, int& defaultPosition, const ID&... ids) {
  std::vector<Record> records;
  const int result = (document.*ask)(ids..., records, defaultPosition);
  EXPECT_EQ(result, records.empty() ? 0 : 1);
  return records;
}
