#include "tool/check/idsets.h"

#include <algorithm>

#include "qdf/support/numbers.h"
#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"
#include "tool/check/values.h"
#include "tool/enumerate.h"

namespace check {

namespace {

// As in: 9, 12 and 15.
std::string All(const std::vector<std::string>& words) { return Enumerate(words, "and", 5); }

class IDListRules {
 public:
  IDListRules(const IDSetUse& use, Findings& findings)
      : use_(use),
        attribute_(use.element.Find(use.attribute)),
        text_(attribute_.Value()),
        parts_(SplitIDList(text_)),
        findings_(findings) {}

  void Run() {
    if (parts_.all || IsRange()) return;
    ExamineUnread();
    ADWordArray seen;
    UniqueIDs unique(seen);
    ForEachIDPiece(parts_.listed, [&](std::string_view piece, std::uint32_t id) {
      if (!IsWholeNumber(piece)) {
        malformed_.Add(piece, Quote(piece));
      } else if (!use_.list.ids->Holds(id)) {
        unknown_.Add(piece, std::string(piece));
      } else if (unique.Holds(id)) {
        repeated_.Add(piece, std::string(piece));
      } else {
        unique.Add(id);
      }
    });
    TellPieces();
  }

 private:
  struct Pieces {
    void Add(std::string_view piece, std::string word) {
      if (words.empty()) first = piece;
      words.push_back(std::move(word));
    }
    std::string_view first;
    std::vector<std::string> words;
  };

  void Tell(Code code, std::string_view part, std::string message, std::string hint) {
    findings_.Add(code, use_.element, attribute_.PlaceOf(part), std::move(message),
                  std::move(hint));
  }

  // What is meant by it is clear, and so it has no other finding.
  bool IsRange() {
    if (!parts_.exclusion || Trimmed(parts_.listed).empty()) return false;
    const std::string_view lead = text_.substr(0, text_.find('-'));
    if (!IsWholeNumber(lead.substr(lead.find_last_of(",(") + 1))) return false;
    Tell(Code::kIDListRange, text_,
         Quote(text_) + " is no range: it stands for all " + Plural(use_.kind) + " but " +
             std::string(Trimmed(parts_.listed)),
         "write the ids one by one with commas between them");
    return true;
  }

  void ExamineUnread() {
    const auto begin = static_cast<std::size_t>(parts_.listed.data() - text_.data());
    std::string_view before = text_.substr(0, begin);
    const std::string_view behind = text_.substr(begin + parts_.listed.size());
    if (parts_.exclusion) {
      const std::size_t dash = text_.find('-');
      const std::string_view lead = Trimmed(text_.substr(0, dash));
      if (!EqualNoCase(lead, "ALL")) TellUnread(lead);
      before.remove_prefix(dash + 1);
    }
    if (!before.empty()) TellUnread(Trimmed(before.substr(0, before.find('('))));
    if (!behind.empty()) TellUnread(Trimmed(behind.substr(1)));
  }

  void TellUnread(std::string_view part) {
    if (part.empty()) return;
    Tell(Code::kIDListUnread, part,
         Quote(part) + " in the " + use_.attribute + ' ' + Quote(text_) + " isn't read",
         "an id list is \"ALL\", or ids between commas, or all but some, as in \"-(1,2)\"");
  }

  void TellPieces() {
    const std::string in = " in the " + std::string(use_.attribute) + ' ' + Quote(text_);
    if (!malformed_.words.empty()) {
      const bool all = EqualNoCase(malformed_.first, "ALL");
      Tell(Code::kIDListMalformed, malformed_.first,
           All(malformed_.words) + in +
               (malformed_.words.size() == 1 ? " isn't a whole number" : " aren't whole numbers") +
               ": only a leading number counts",
           all ? "\"ALL\" counts only when it stands alone" : "write ids with commas between them");
    }
    if (!unknown_.words.empty()) {
      const bool one = unknown_.words.size() == 1;
      Tell(Code::kIDUnknown, unknown_.first,
           std::string(FormOf(use_.kind).section) + " has no " +
               (one ? FormOf(use_.kind).entry : Plural(use_.kind)) + " with the id" +
               (one ? " " : "s ") + All(unknown_.words),
           "correct it, or take it out");
    }
    if (!repeated_.words.empty()) {
      Tell(Code::kIDListRepeats, repeated_.first,
           All(repeated_.words) + " stands more than once" + in, "take it out");
    }
  }

  const IDSetUse& use_;
  Attribute attribute_;
  std::string_view text_;
  IDListText parts_;
  Findings& findings_;
  Pieces malformed_;
  Pieces unknown_;
  Pieces repeated_;
};

// Of a default that isn't below.
std::string WhatItNames(const IDSetUse& use, int id) {
  const ListForm& form = FormOf(use.kind);
  if (!use.list.ids->Holds(static_cast<std::uint32_t>(id))) {
    return " names no " + std::string(form.entry) + " of " + form.section;
  }
  const std::string entry = Describe(use.kind, use.list, id);
  // All inks are on offer, whatever stands below.
  return use.kind == kInks ? " preselects " + entry + ", which nothing can follow"
                           : " preselects nothing: " + entry + " isn't below this element";
}

}  // namespace

ADWordArray CheckIDs(const IDSetUse& use, Findings& findings) {
  ADWordArray ids;
  ParseIDList(use.element.Find(use.attribute).Value(), *use.list.ids, ids);
  if (ids.GetSize() > 0) IDListRules(use, findings).Run();
  return ids;
}

std::string WhyNoIDs(const IDSetUse& use) {
  const Attribute given = use.element.Find(use.attribute);
  const std::string text = given.Value();
  const ListForm& form = FormOf(use.kind);
  const std::string attribute = use.attribute;
  if (!given) return "it has no " + attribute;
  if (Trimmed(text).empty()) return "its " + attribute + " is empty";
  if (use.list.entries.empty()) return std::string(form.section) + " has no entry";
  const std::string its = "its " + attribute + ' ' + Quote(text);
  if (SplitIDList(text).exclusion) return its + " excludes all " + Plural(use.kind);
  bool isNumber = false;
  ForEachIDPiece(SplitIDList(text).listed, [&](std::string_view piece, std::uint32_t) {
    isNumber = isNumber || IsWholeNumber(piece);
  });
  if (!isNumber) return its + " holds no whole number";
  return its + " names no " + form.entry + " of " + form.section;
}

void CheckDefault(const IDSetUse& use, const std::vector<ElementNode>& below, Findings& findings) {
  const Attribute attribute = use.element.Find(use.attribute);
  const int id = ReadInt(attribute.Value());
  const bool isBelow = std::any_of(below.begin(), below.end(), [id](const ElementNode& node) {
    const auto wanted = static_cast<std::uint32_t>(id);
    return std::find(node.ids.begin(), node.ids.end(), wanted) != node.ids.end();
  });
  const Given given = attribute ? GivenAttribute(use.element, attribute) : Given();
  if (!given.text.empty()) CheckWholeNumber(given, findings);
  if (isBelow || below.empty()) return;
  const ListForm& form = FormOf(use.kind);
  const std::string name = use.attribute;
  if (given.text.empty() || (id == 0 && IsWholeNumber(given.text))) {
    findings.Add(Code::kDefaultMissing, use.element,
                 "without " + name + " the first " + form.entry + " is preselected",
                 "name one in " + name);
  } else {
    findings.Add(Code::kDefaultUnknown, use.element, given.place,
                 name + ' ' + Quote(given.text) + WhatItNames(use, id),
                 "name one that stands below, or take the attribute out");
  }
}

void TellNoIDs(const IDSetUse& use, Findings& findings) {
  const Attribute attribute = use.element.Find(use.attribute);
  const std::size_t under = use.element.CountUnder();
  const std::string name = use.element.Name();
  std::string message = "this " + name + " vanishes";
  if (under > 0) message += " with the " + Count(under, "element") + " under it";
  findings.Add(Code::kNoIDs, use.element,
               attribute ? attribute.ValuePlace() : use.element.NamePlace(),
               message + ": " + WhyNoIDs(use), "correct it, or take the element out");
}

std::string Plural(ListKind kind) {
  return kind == kMedia ? "media" : std::string(FormOf(kind).entry) + 's';
}

std::string Describe(ListKind kind, const KeptList& list, int id) {
  std::string text = FormOf(kind).entry + (' ' + std::to_string(id));
  const auto found = list.byID.find(id);
  const bool isNamed = found != list.byID.end() && !list.entries[found->second].name.empty();
  return isNamed ? text + " (" + Quote(list.entries[found->second].name) + ')' : text;
}

}  // namespace check
