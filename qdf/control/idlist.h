#pragma once

// The text form of a set of ids, as the ID attributes of the two trees hold it: "ALL"; ids between
// commas, in brackets or not; or everything but the ids behind a "-". A "-" is never a sign or a
// range.

#include <string>
#include <string_view>

#include "qdf/support/aarrays.h"
#include "qdf/support/idset.h"
#include "qdf/support/numbers.h"
#include "qdf/support/text.h"

// The ids of one level, in list order, with a way to find one.
class LevelIDs {
 public:
  explicit LevelIDs(const ADWordArray& ids);

  const ADWordArray& All() const { return ids_; }
  bool Holds(std::uint32_t id) const { return known_.Holds(id); }

 private:
  ADWordArray ids_;
  IDSet known_;
};

// What such a text is made of. Of an exclusion the listed ids are those that are left out. What
// stands before or behind the listed part isn't read.
struct IDListText {
  bool all = false;  // the word "ALL": nothing is listed
  bool exclusion = false;
  std::string_view listed;  // a part of the text: ids between commas
};
IDListText SplitIDList(std::string_view text);

// Calls `use(piece, id)` for each piece of the listed part: the text between two commas without the
// white space at its ends, and the number that it begins with, 0 without one. Empty pieces are
// skipped.
template <class Use>
void ForEachIDPiece(std::string_view listed, Use use) {
  while (true) {
    const std::size_t comma = listed.find(',');
    const std::string_view piece = Trimmed(listed.substr(0, comma));
    if (!piece.empty()) {
      use(piece, static_cast<std::uint32_t>(ReadInt(std::string(piece).c_str())));
    }
    if (comma == std::string_view::npos) return;
    listed.remove_prefix(comma + 1);
  }
}

// Puts the ids that the text names into `ids`, which the caller has emptied. Ids that aren't among
// all ids are dropped, and repeated ones count once. Listed ids keep the order of the text; "ALL"
// and exclusions give the order of all ids.
void ParseIDList(AString& text, ADWordArray& allIDs, ADWordArray& ids);

// The same with the level's ids that the caller keeps.
void ParseIDList(std::string_view text, const LevelIDs& level, ADWordArray& ids);
