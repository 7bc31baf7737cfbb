#include "qdf/control/idlist.h"

#include <string>

#include "qdf/support/numbers.h"
#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"

namespace {

// Without what stands up to and with the first `mark`, if there is one.
std::string_view Behind(std::string_view text, char mark) {
  const std::size_t at = text.find(mark);
  return at == std::string_view::npos ? text : text.substr(at + 1);
}

// The known ids among the pieces between commas, each once.
void ReadPieces(std::string_view text, const LevelIDs& level, UniqueIDs& ids) {
  while (true) {
    const std::size_t comma = text.find(',');
    const std::string_view piece = Trimmed(text.substr(0, comma));
    if (!piece.empty()) {
      const auto id = static_cast<std::uint32_t>(ReadInt(std::string(piece).c_str()));
      if (level.Holds(id)) ids.Add(id);
    }
    if (comma == std::string_view::npos) return;
    text.remove_prefix(comma + 1);
  }
}

}  // namespace

LevelIDs::LevelIDs(const ADWordArray& ids) : ids_(ids) {
  for (const std::uint32_t id : ids) known_.Add(id);
}

void ParseIDList(std::string_view text, const LevelIDs& level, ADWordArray& ids) {
  if (EqualNoCase(Trimmed(text), "ALL")) {
    ids.Copy(level.All());
    return;
  }
  const bool exclusion = text.find('-') != std::string_view::npos;
  std::string_view listed = exclusion ? Behind(text, '-') : text;
  listed = Behind(listed, '(');
  listed = listed.substr(0, listed.find(')'));

  if (!exclusion) {
    ids.SetSize(0, -1);
    UniqueIDs unique(ids);
    ReadPieces(listed, level, unique);
    return;
  }
  ADWordArray excluded;
  UniqueIDs unique(excluded);
  ReadPieces(listed, level, unique);
  for (const std::uint32_t id : level.All()) {
    if (!unique.Holds(id)) ids.Add(id);
  }
}

void ParseIDList(AString& text, ADWordArray& allIDs, ADWordArray& ids) {
  ParseIDList(View(text), LevelIDs(allIDs), ids);
}
