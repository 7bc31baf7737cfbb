// Id list texts against plain loops. The first line of an input holds all ids, the
// rest is the text.

#include "fuzz/fuzzing.h"
#include "qdf/control/idlist.h"
#include "qdf/core/qdfnode.h"
#include "qdf/support/numbers.h"
#include "qdf/support/text.h"
#include "tests/documents.h"

namespace {

// Appends the numbers between commas that the array doesn't hold and `allowed`, if given, does.
void AddNumbers(std::string text, ADWordArray& ids, ADWordArray* allowed) {
  for (text += ','; !text.empty(); text = text.substr(text.find(',') + 1)) {
    const std::string piece(Trimmed(text.substr(0, text.find(','))));
    if (piece.empty()) continue;
    const auto id = static_cast<std::uint32_t>(ReadInt(piece.c_str()));
    const bool known = allowed == nullptr || IsIDInArray(id, *allowed) != 0;
    if (known && IsIDInArray(id, ids) == 0) ids.Add(id);
  }
}

ADWordArray PlainList(std::string text, ADWordArray& all) {
  if (EqualNoCase(Trimmed(text), "ALL")) return all;
  const std::size_t minus = text.find('-');
  if (minus != std::string::npos) text = text.substr(minus + 1);
  const std::size_t open = text.find('(');
  if (open != std::string::npos) text = text.substr(open + 1);
  ADWordArray listed;
  AddNumbers(text.substr(0, text.find(')')), listed, &all);
  if (minus == std::string::npos) return listed;
  ADWordArray rest;
  for (const std::uint32_t id : all) {
    if (IsIDInArray(id, listed) == 0) rest.Add(id);
  }
  return rest;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input = TextOf(data, size);
  ADWordArray all;
  if (!input.empty()) AddNumbers(TakeLine(input), all, nullptr);
  AString text(std::string(input).c_str());
  ADWordArray ids;
  ParseIDList(text, all, ids);
  RequireEqual(Dump(PlainList(std::string(text), all)), Dump(ids), "the ids of a list");
  return 0;
}
