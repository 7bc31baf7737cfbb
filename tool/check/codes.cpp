#include "tool/check/codes.h"

#include <algorithm>

namespace check {

namespace {

constexpr Severity kError = Severity::kError;
constexpr Severity kWarning = Severity::kWarning;
constexpr Severity kNote = Severity::kNote;

constexpr Rule kRules[] = {
    {Code::kUnreadable, "unreadable", kError, "the file can't be read"},
    {Code::kNotWellFormed, "not-well-formed", kError, "the file is no well-formed XML"},
    {Code::kDefinitionMissing, "definition-missing", kError, "there is no Definition"},
    {Code::kListMissing, "list-missing", kError, "a mandatory list isn't there"},
    {Code::kListEmpty, "list-empty", kError, "a mandatory list has no entry"},
    {Code::kListEmptied, "list-emptied", kError,
     "a mandatory list has entries, and all are dropped"},
    {Code::kRootName, "root-name", kNote, "the root element has an unusual name"},
    {Code::kEncodingIgnored, "encoding-ignored", kWarning,
     "the declared encoding isn't looked at: names keep the bytes that they have"},
    {Code::kNotUTF8, "not-utf8", kWarning, "a byte isn't part of a character of UTF-8"},

    {Code::kElementUnknown, "element-unknown", kWarning, "nobody reads this element"},
    {Code::kElementTwice, "element-twice", kWarning, "only the first element of this name counts"},
    {Code::kAttributeUnknown, "attribute-unknown", kWarning, "nobody reads this attribute"},
    {Code::kTextUnread, "text-unread", kWarning, "text stands where nobody reads one"},
    {Code::kEntryName, "entry-name", kNote, "an entry has an unusual element name"},

    {Code::kIDMissing, "id-missing", kWarning, "an entry without an ID gets the id 0"},
    {Code::kIDMalformed, "id-malformed", kWarning, "an ID isn't a whole number"},
    {Code::kIDTwice, "id-twice", kWarning, "an entry is dropped: its id is taken"},
    {Code::kIDNegative, "id-negative", kNote, "no id list can name a negative id"},
    {Code::kNameCut, "name-cut", kWarning, "a name is longer than its field"},
    {Code::kNameMissing, "name-missing", kNote, "an entry has no name to show"},
    {Code::kNameSame, "name-same", kNote, "two entries of a list have one name"},
    {Code::kNameBlanks, "name-blanks", kNote, "blanks around a name are part of it"},
    {Code::kNumberMalformed, "number-malformed", kWarning,
     "a text isn't the number that is read from it"},
    {Code::kNumbersMissing, "numbers-missing", kWarning, "there are fewer numbers than are read"},
    {Code::kValueNotPositive, "value-not-positive", kWarning, "a resolution is 0 or less"},
    {Code::kSizeNotPositive, "size-not-positive", kWarning, "a media size is 0 or less"},
    {Code::kNoColorants, "no-colorants", kWarning, "a colour mode without colorants is dropped"},

    {Code::kNoIDs, "no-ids", kWarning, "an element gives no ids and vanishes with all under it"},
    {Code::kIDUnknown, "id-unknown", kWarning, "an id list names ids that no list holds"},
    {Code::kIDListMalformed, "idlist-malformed", kWarning,
     "a piece of an id list isn't a whole number"},
    {Code::kIDListRange, "idlist-range", kWarning, "\"1-3\" is an exclusion, not a range"},
    {Code::kIDListUnread, "idlist-unread", kWarning, "a part of an id list isn't read"},
    {Code::kIDListRepeats, "idlist-repeats", kNote, "an id list names an id twice"},

    {Code::kDefaultUnknown, "default-unknown", kWarning, "a default names nothing below"},
    {Code::kDefaultMissing, "default-missing", kNote, "there is no default"},
    {Code::kDeadEnd, "dead-end", kWarning, "nothing can follow this element"},
    {Code::kControlMissing, "control-missing", kWarning,
     "without Control_Definition nothing can be combined"},

    {Code::kProfileDefaultUnlisted, "profile-default-unlisted", kWarning,
     "a default profile that isn't among the profiles is never handed out"},
    {Code::kProfileTwice, "profile-twice", kNote, "a profile stands twice in a colour mode"},
    {Code::kProfileEmpty, "profile-empty", kNote, "a profile has an empty name"},
    {Code::kDitherDefaultUnlisted, "dither-default-unlisted", kNote,
     "a default dither isn't among the dithers"},
    {Code::kDitherDefaultDropped, "dither-default-dropped", kWarning,
     "a default dither counts only beside a DitherList"},
    {Code::kDitherDefaultMisplaced, "dither-default-misplaced", kWarning,
     "DefaultDither is read on ColorMode only"},
    {Code::kDitherUnnamed, "dither-unnamed", kWarning, "a dither without a name is skipped"},
    {Code::kDitherTwice, "dither-twice", kWarning, "a dither stands twice in a list"},
    {Code::kDitherUnused, "dither-unused", kWarning, "a dither gives nothing at all"},
    {Code::kDithersHidden, "dithers-hidden", kNote, "SupportAll keeps the dithers' names back"},
    {Code::kRipMissing, "rip-missing", kNote, "a dither has no RIP resolution"},
    {Code::kRipUnusable, "rip-unusable", kWarning, "a RIP resolution isn't positive"},
    {Code::kAllHides, "all-hides", kWarning, "\"ALL\" hides the other names"},
    {Code::kNameCase, "name-case", kWarning, "names differ in case only"},

    {Code::kNeverReached, "never-reached", kWarning, "no choice of ids leads to this element"},
    {Code::kIDsShadowed, "ids-shadowed", kWarning,
     "earlier elements answer for some ids of an element in every choice"},
    {Code::kOptionHidden, "option-hidden", kWarning,
     "an option can be reached by ids but is never listed"},
    {Code::kReachUnfinished, "reach-unfinished", kNote,
     "sets of ids overlap in too many ways to tell what can be reached"},
    {Code::kEntryUnused, "entry-unused", kWarning, "no combination uses this entry"},

    {Code::kSourcesUnread, "sources-unread", kWarning,
     "MediaSource_Control isn't read without a MediaSourceList"},
    {Code::kSourcesMissing, "sources-missing", kWarning,
     "without MediaSource_Control no media source is offered"},
    {Code::kSourceShadowed, "source-shadowed", kWarning,
     "a second element for a media source or size is never looked at"},
    {Code::kSourceOverlaps, "source-overlaps", kWarning,
     "some ids of an element are answered by an earlier one"},
    {Code::kSizeNoMargins, "size-no-margins", kWarning, "a media size has no margins"},

    {Code::kWriteAside, "write-aside", kNote, "a write loses comments and instructions"},
    {Code::kWriteDefaultInk, "write-default-ink", kNote, "a write loses the default ink"},
    {Code::kWriteInk, "write-ink", kNote, "a write keeps the first Ink only"},
    {Code::kWriteScreen, "write-screen", kNote, "a write loses the screen of a colorant"},
    {Code::kWriteDefaultDither, "write-default-dither", kNote, "a write loses a default dither"},
    {Code::kWriteDitherCase, "write-dither-case", kNote, "a write turns dither names to capitals"},
    {Code::kWriteRip, "write-rip", kNote, "a write loses RIP resolutions"},
    {Code::kWriteSupportAll, "write-support-all", kNote,
     "a write loses that all dithers are supported"},
    {Code::kWriteDefaultMargin, "write-default-margin", kNote, "a write loses a default margin"},
    {Code::kWriteMargins, "write-margins", kNote, "a write takes margins from another element"},
    {Code::kWriteFraction, "write-fraction", kNote, "a write cuts resolutions to whole numbers"},
    {Code::kWriteDecimals, "write-decimals", kNote, "a write keeps six decimals"},
    {Code::kWriteIDList, "write-idlist", kNote, "a write turns short id lists into plain ones"},

    {Code::kTableMissing, "table-missing", kWarning,
     "the translation table isn't beside the document"},
    {Code::kCustomMediaMissing, "custom-media-missing", kNote,
     "the custom media file isn't beside the document yet"},
    {Code::kFileNameNotBare, "file-name-not-bare", kWarning,
     "a file is named by more than its bare name"},
};

constexpr bool AreInOrder() {
  for (std::size_t i = 0; i < std::size(kRules); ++i) {
    if (kRules[i].code != static_cast<Code>(i)) return false;
  }
  return kRules[std::size(kRules) - 1].code == Code::kFileNameNotBare;
}
static_assert(AreInOrder());

}  // namespace

const char* NameOf(Severity severity) {
  switch (severity) {
    case Severity::kError:
      return "error";
    case Severity::kWarning:
      return "warning";
    case Severity::kNote:
      break;
  }
  return "note";
}

std::span<const Rule> Rules() { return kRules; }

const Rule& RuleOf(Code code) { return kRules[static_cast<std::size_t>(code)]; }

const Rule* FindRule(std::string_view name) {
  const auto* found = std::find_if(std::begin(kRules), std::end(kRules),
                                   [&](const Rule& rule) { return rule.name == name; });
  return found != std::end(kRules) ? found : nullptr;
}

}  // namespace check
