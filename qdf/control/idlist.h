#pragma once

// The text form of a set of ids, as the ID attributes of the two trees hold it: "ALL"; ids between
// commas, in brackets or not; or everything but the ids behind a "-". A "-" is never a sign or a
// range.

#include <string_view>

#include "qdf/support/aarrays.h"
#include "qdf/support/idset.h"

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

// Puts the ids that the text names into `ids`, which the caller has emptied. Ids that aren't among
// all ids are dropped, and repeated ones count once. Listed ids keep the order of the text; "ALL"
// and exclusions give the order of all ids.
void ParseIDList(AString& text, ADWordArray& allIDs, ADWordArray& ids);

// The same with the level's ids that the caller keeps.
void ParseIDList(std::string_view text, const LevelIDs& level, ADWordArray& ids);
