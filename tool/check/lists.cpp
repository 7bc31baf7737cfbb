// The lists of Definition and its other values.

#include <unordered_map>

#include "qdf/definition/records.h"
#include "qdf/support/numbers.h"
#include "qdf/support/text.h"
#include "tool/check/rules.h"
#include "tool/check/values.h"

namespace check {

namespace {

constexpr ListForm kForms[kListKinds] = {
    {"InkList", "ink", true},
    {"MediaList", "medium", true},
    {"PrintModeList", "print mode", true},
    {"ResolutionList", "resolution", true},
    {"ColorModeList", "colour mode", true},
    {"MediaSizeList", "media size", false},
    {"MarginInfoList", "margin set", false},
    {"MediaSourceList", "media source", false},
};

constexpr std::size_t kNameSize = sizeof InkTypeInfo::DisplayName;
constexpr std::size_t kColorantNameSize = sizeof ColorantInfo::DisplayName;

class ListRules {
 public:
  ListRules(ListKind kind, KeptList& list, Findings& findings)
      : kind_(kind), form_(FormOf(kind)), list_(list), findings_(findings) {}

  void Run() {
    ADWordArray ids;
    for (Element entry = list_.section.First(); entry; entry = entry.Next()) {
      ++written_;
      if (!ExamineEntry(entry)) continue;
      ids.Add(static_cast<std::uint32_t>(list_.entries.back().id));
    }
    list_.ids = std::make_unique<LevelIDs>(ids);
  }

  // Answers whether the document is refused for this list.
  bool TellRefusal(const Element& definition) {
    if (!form_.isMandatory || !list_.entries.empty()) return false;
    const std::string name = form_.section;
    const std::string refused = ": the document is refused";
    if (!list_.section) {
      findings_.Add(Code::kListMissing, definition, "Definition has no " + name + refused,
                    "add it, with one entry at least");
    } else if (written_ == 0) {
      findings_.Add(Code::kListEmpty, list_.section, name + " has no entry" + refused,
                    "give it one");
    } else {
      findings_.Add(Code::kListEmptied, list_.section,
                    "every " + std::string(form_.entry) + " of " + name + " is dropped" + refused,
                    "mend one of them, as the warnings about them say");
    }
    return true;
  }

 private:
  // Answers whether the reader keeps the entry.
  bool ExamineEntry(const Element& entry) {
    const Element colorants = entry.First("ColorantList");
    if (kind_ == kColorModes && !colorants.First()) {
      findings_.Add(Code::kNoColorants, entry, "this colour mode is dropped: it has no colorants",
                    "give it a ColorantList with a Color for each of its colorants");
      return false;
    }
    const int id = ExamineID(entry);
    const auto [known, isNew] = list_.byID.emplace(id, list_.entries.size());
    if (!isNew) {
      TellDropped(entry, id, list_.entries[known->second]);
      return false;
    }
    list_.entries.push_back({entry, id, KeptName(entry, "DisplayName")});
    ExamineNames(entry);
    ExamineValues(entry);
    if (kind_ == kColorModes) {
      for (Element each = colorants.First(); each; each = each.Next()) ExamineColorant(each);
    }
    return true;
  }

  int ExamineID(const Element& entry) {
    const Element element = entry.First("ID");
    const std::string text = element.Text();
    const std::string article = This();
    if (Trimmed(text).empty()) {
      findings_.Add(Code::kIDMissing, element ? element : entry,
                    article + " has no ID and gets the id 0", "give it an ID");
      return 0;
    }
    const int id = ReadInt(text.c_str());
    if (!IsWholeNumber(text)) {
      findings_.Add(
          Code::kIDMalformed, element, element.TextPlace(),
          "the ID " + Quote(text) + " isn't a whole number and is read as " + std::to_string(id),
          "write a whole number");
    } else if (id < 0) {
      findings_.Add(Code::kIDNegative, element, element.TextPlace(),
                    "no id list can name the id " + std::to_string(id) +
                        ", since a \"-\" makes an exclusion of it; only \"ALL\" and exclusions "
                        "reach it",
                    "give it a positive ID");
    }
    return id;
  }

  void TellDropped(const Element& entry, int id, const KeptEntry& stands) {
    const Element element = entry.First("ID");
    const Element place = element ? element : entry;
    findings_.Add(Code::kIDTwice, place, element ? element.TextPlace() : entry.NamePlace(),
                  This() + " is dropped: " + (stands.name.empty() ? "that" : Quote(stands.name)) +
                      " on " + findings_.LineOf(stands.element) + " has the id " +
                      std::to_string(id) + " already",
                  "give it an ID of its own");
  }

  std::string This() const { return std::string("this ") + form_.entry; }

  static std::string KeptName(const Element& entry, const char* value) {
    return entry.First(value).Text().substr(0, kNameSize);
  }

  void ExamineNames(const Element& entry) {
    ExamineName(entry, "DisplayName", byDisplayName_);
    // A resolution has no internal name.
    if (kind_ != kResolutions) ExamineName(entry, "InternalName", byInternalName_);
    if (Trimmed(list_.entries.back().name).empty()) {
      findings_.Add(Code::kNameMissing, entry, This() + " has no DisplayName: hosts show nothing",
                    "give it a DisplayName");
    }
  }

  using ByName = std::unordered_map<std::string, Element>;

  void ExamineName(const Element& entry, const char* value, ByName& known) {
    const Element element = entry.First(value);
    const Given given = GivenText(element);
    if (given.text.empty()) return;
    CheckNameFits(given, kNameSize, findings_);
    CheckNameBlanks(given, findings_);
    const std::string name = KeptName(entry, value);
    const auto [former, isNew] = known.emplace(name, entry);
    if (isNew) return;
    findings_.Add(Code::kNameSame, element, given.place,
                  "the " + std::string(form_.entry) + " on " + findings_.LineOf(former->second) +
                      " has the " + value + ' ' + Quote(name) + " as well",
                  "tell the two apart by their names");
  }

  void ExamineValues(const Element& entry) {
    switch (kind_) {
      case kMedia:
        return ExamineWhole(entry, "IsCustomizableMedia");
      case kResolutions:
        return ExamineResolution(entry);
      case kMediaSizes:
        ExamineWhole(entry, "PCLid");
        ExamineWhole(entry, "IsRoll");
        return ExamineSize(entry, 2);
      case kMargins:
        return ExamineSize(entry, 4);
      default:
        return;
    }
  }

  void ExamineWhole(const Element& entry, const char* value) {
    const Element element = entry.First(value);
    if (element) CheckWholeNumber(GivenText(element), findings_);
  }

  void ExamineResolution(const Element& entry) {
    const Element element = entry.First("Value");
    if (element && CheckResolution(GivenText(element), findings_)) return;
    const Element place = element ? element : entry;
    findings_.Add(Code::kValueNotPositive, place, place.TextPlace(),
                  element
                      ? "the Value " + Quote(element.Text()) + " gives a resolution of 0 or less"
                      : "this resolution has no Value and is 0",
                  "write one positive number, or two with an \"x\" between them");
  }

  void ExamineSize(const Element& entry, std::size_t numbers) {
    const Element element = entry.First("Size");
    if (!element) {
      findings_.Add(Code::kNumbersMissing, entry, This() + " has no Size: its numbers are 0",
                    "give it a Size with " + Count(numbers, "number"));
      return;
    }
    const Given size = GivenText(element);
    if (!CheckNumbers(size, numbers, findings_) || kind_ != kMediaSizes) return;
    double first = 0.0;
    double second = 0.0;
    ScanDoubles(size.text.c_str(), std::array{&first, &second});
    if (first > 0.0 && second > 0.0) return;
    findings_.Add(Code::kSizeNotPositive, element, size.place,
                  "the Size " + Quote(size.text) + " gives a dimension that isn't above 0",
                  "write two positive numbers");
  }

  void ExamineColorant(const Element& colorant) {
    ExamineWhole(colorant, "ColorDepth");
    for (const char* value : {"DisplayName", "InternalName"}) {
      const Element element = colorant.First(value);
      if (element) CheckNameFits(GivenText(element), kColorantNameSize, findings_);
    }
    for (Attribute at = colorant.FirstAttribute(); at; at = at.Next()) {
      const Given given = GivenAttribute(colorant, at);
      if (given.text.empty()) continue;
      if (given.name == "Shape") {
        CheckNameFits(given, sizeof ANewColorOpt::Shape, findings_);
      } else if (given.name == "IsSpotColor" || given.name == "IsPrint") {
        CheckWholeNumber(given, findings_);
      } else if (given.name == "Frequency" || given.name == "Angle") {
        CheckShortNumber(given, findings_);
      }
    }
  }

  ListKind kind_;
  const ListForm& form_;
  KeptList& list_;
  Findings& findings_;
  int written_ = 0;
  ByName byDisplayName_;
  ByName byInternalName_;
};

void ExamineHeader(const Element& definition, Findings& findings) {
  for (const char* value : {"ProductType", "TranslationTable", "CustomMediaFile"}) {
    const Element element = definition.First(value);
    if (element) CheckNameBlanks(GivenText(element), findings);
  }
  for (const char* value : {"MinAndMaxMediaSize", "MinMarginSize"}) {
    const Element element = definition.First(value);
    if (element) CheckNumbers(GivenText(element), 4, findings);
  }
}

}  // namespace

const ListForm& FormOf(ListKind kind) { return kForms[kind]; }

Lists CheckLists(const XMLView& document, Findings& findings) {
  Lists lists;
  const Element definition = document.Root().First("Definition");
  if (!definition) {
    findings.Add(Code::kDefinitionMissing, document.Root(),
                 "the root element has no Definition: the document is refused",
                 "add it, with all lists that a document must have");
    lists.refused = true;
    return lists;
  }
  ExamineHeader(definition, findings);
  for (int i = 0; i < kListKinds; ++i) {
    const auto kind = static_cast<ListKind>(i);
    KeptList& list = lists.kept[kind];
    list.section = definition.First(FormOf(kind).section);
    ListRules rules(kind, list, findings);
    rules.Run();
    if (rules.TellRefusal(definition)) lists.refused = true;
  }
  return lists;
}

}  // namespace check
