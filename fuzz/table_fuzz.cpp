// Any bytes as a translation table, against a plain reader: its pairs, and a document
// localised with it, which has their translations and all other names as they were.

#include <map>
#include <memory>

#include "fuzz/fuzzing.h"
#include "qdf/core/documentmembers.h"
#include "qdf/localise/localise.h"
#include "qdf/localise/translationtable.h"
#include "qdf/support/text.h"
#include "tests/documents.h"

namespace {

using Table = std::map<std::string, std::string>;

int PlainDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return 0;
}

std::string PlainDecoded(const std::string& text) {
  std::string out;
  bool inRun = false;
  for (const char* at = text.c_str(); *at != '\0'; ++at) {
    if (!inRun && *at == '<') {
      inRun = true;
    } else if (!inRun || *at == ' ') {
      out += *at;
    } else if (*at == '>' || at[1] == '\0') {
      inRun = false;
    } else {
      out += static_cast<char>(PlainDigit(at[0]) * 16 + PlainDigit(at[1]));
      ++at;
    }
  }
  return out.c_str();
}

void AddPair(std::string value, Table& table) {
  std::string key;
  if (!CutAt('=', key, value) || key.size() < 2 || value.size() < 2) return;
  if (key.front() == '*') key.erase(0, 1);
  if (value.front() == '/') value.erase(0, 1);
  if (value.back() == ':') value.pop_back();
  value = PlainDecoded(value);
  if (!value.empty()) table[key] = value;
}

std::string Dump(const Table& table) {
  std::string text;
  for (const auto& [key, value] : table) text.append(key).append("=").append(value).append("\n");
  return text;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const TempFolder folder;
  static const auto document =
      Load({.InkList = Entries("1=ab;2=Plain Paper;3=" + std::string(300, 'x')),
            .Definition = "<TranslationTable>table.txt</TranslationTable>"});
  static const APtrArray& inks = DocumentMembers(*document).InkList;
  static const auto former = Records<InkTypeInfo>(inks);
  const WorkingFolder in(folder.Path());
  std::string_view rest = TextOf(data, size);
  AFilePath path(folder.Write("OutputDrivers/table.txt", rest).c_str());
  Table expected;
  while (!rest.empty()) AddPair(TakeLine(rest), expected);
  Table table;
  const int result = ReadTranslationTable(path, [&](const TableLine& line) {
    if (line.Fault == nullptr) table[std::string(line.Pair.Key)] = line.Pair.Translation;
  });
  Require(result != 0, "a table is read");
  RequireEqual(Dump(expected), Dump(table), "the pairs of a table");
  PMLocalizeQDFByTranslationTable(document.get());
  for (int i = 0; i < inks.GetSize(); ++i) {
    auto& ink = *static_cast<InkTypeInfo*>(inks.GetAt(i));
    const InkTypeInfo& before = former[static_cast<std::size_t>(i)];
    const auto found = expected.find(Str(before.DisplayName));
    const std::string name = found != expected.end() ? found->second : Str(before.DisplayName);
    RequireEqual(name.substr(0, sizeof ink.DisplayName), Str(ink.DisplayName), "a translated name");
    ink = before;
  }
  return 0;
}
