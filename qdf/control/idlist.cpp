#include "qdf/control/idlist.h"

#include "qdf/support/uniqueids.h"

namespace {

// Without what stands up to and with the first `mark`, if there is one.
std::string_view Behind(std::string_view text, char mark) {
  const std::size_t at = text.find(mark);
  return at == std::string_view::npos ? text : text.substr(at + 1);
}

// The known ids among the pieces between commas, each once.
void ReadPieces(std::string_view listed, const LevelIDs& level, UniqueIDs& ids) {
  ForEachIDPiece(listed, [&](std::string_view, std::uint32_t id) {
    if (level.Holds(id)) ids.Add(id);
  });
}

}  // namespace

LevelIDs::LevelIDs(const ADWordArray& ids) : ids_(ids) {
  for (const std::uint32_t id : ids) known_.Add(id);
}

IDListText SplitIDList(std::string_view text) {
  IDListText parts;
  parts.all = EqualNoCase(Trimmed(text), "ALL");
  if (parts.all) return parts;
  parts.exclusion = text.find('-') != std::string_view::npos;
  parts.listed = Behind(parts.exclusion ? Behind(text, '-') : text, '(');
  parts.listed = parts.listed.substr(0, parts.listed.find(')'));
  return parts;
}

void ParseIDList(std::string_view text, const LevelIDs& level, ADWordArray& ids) {
  const IDListText parts = SplitIDList(text);
  if (parts.all) {
    ids.Copy(level.All());
  } else if (parts.exclusion) {
    ADWordArray excluded;
    UniqueIDs unique(excluded);
    ReadPieces(parts.listed, level, unique);
    for (const std::uint32_t id : level.All()) {
      if (!unique.Holds(id)) ids.Add(id);
    }
  } else {
    ids.SetSize(0, -1);
    UniqueIDs unique(ids);
    ReadPieces(parts.listed, level, unique);
  }
}

void ParseIDList(AString& text, ADWordArray& allIDs, ADWordArray& ids) {
  ParseIDList(View(text), LevelIDs(allIDs), ids);
}
