#pragma once

// All that an examination can find, each with its stable code.

#include <span>
#include <string_view>

namespace check {

// An error: the document is refused. A warning: something written is lost, or can never be chosen
// or handed out. A note: odd, but harmless.
enum class Severity { kError, kWarning, kNote };

const char* NameOf(Severity severity);

enum class Code {
  // The document as a whole.
  kUnreadable,
  kNotWellFormed,
  kDefinitionMissing,
  kListMissing,
  kListEmpty,
  kListEmptied,
  kRootName,
  kEncodingIgnored,
  kNotUTF8,

  // What nobody reads.
  kElementUnknown,
  kElementTwice,
  kAttributeUnknown,
  kTextUnread,
  kEntryName,

  // The lists of Definition.
  kIDMissing,
  kIDMalformed,
  kIDTwice,
  kIDNegative,
  kNameCut,
  kNameMissing,
  kNameSame,
  kNameBlanks,
  kNumberMalformed,
  kNumbersMissing,
  kValueNotPositive,
  kSizeNotPositive,
  kNoColorants,

  // Sets of ids, in both trees.
  kNoIDs,
  kIDUnknown,
  kIDListMalformed,
  kIDListRange,
  kIDListUnread,
  kIDListRepeats,

  // Defaults and dead ends, in both trees.
  kDefaultUnknown,
  kDefaultMissing,
  kDeadEnd,
  kControlMissing,

  // What stands under a colour mode.
  kProfileDefaultUnlisted,
  kProfileTwice,
  kProfileEmpty,
  kDitherDefaultUnlisted,
  kDitherDefaultDropped,
  kDitherDefaultMisplaced,
  kDitherUnnamed,
  kDitherTwice,
  kDitherUnused,
  kDithersHidden,
  kRipMissing,
  kRipUnusable,
  kAllHides,
  kNameCase,

  // What can be reached.
  kNeverReached,
  kIDsShadowed,
  kOptionHidden,
  kReachUnfinished,
  kEntryUnused,

  // Media sources.
  kSourcesUnread,
  kSourcesMissing,
  kSourceShadowed,
  kSourceOverlaps,
  kSizeNoMargins,

  // What a write loses.
  kWriteAside,
  kWriteDefaultInk,
  kWriteInk,
  kWriteScreen,
  kWriteDefaultDither,
  kWriteDitherCase,
  kWriteRip,
  kWriteSupportAll,
  kWriteDefaultMargin,
  kWriteMargins,
  kWriteFraction,
  kWriteDecimals,
  kWriteIDList,

  // Files beside the document.
  kTableMissing,
  kCustomMediaMissing,
  kFileNameNotBare,
};

struct Rule {
  Code code;
  const char* name;
  Severity severity;
  const char* meaning;  // a few words, without a full stop
};

// In the order of the codes.
std::span<const Rule> Rules();

const Rule& RuleOf(Code code);

// Null when no rule has that name.
const Rule* FindRule(std::string_view name);

}  // namespace check
