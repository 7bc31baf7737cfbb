// What stands under the colour modes: settings for the printer, profiles and dithers.

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "qdf/control/ditherlist.h"
#include "qdf/support/numbers.h"
#include "qdf/support/text.h"
#include "tool/check/rules.h"
#include "tool/check/values.h"

namespace check {

namespace {

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = UpperChar(c);
  return upper;
}

bool IsAll(std::string_view name) { return EqualNoCase(name, "ALL"); }

// The names of one kind in the whole document. Tells of each spelling once that differs in case
// only from the first.
class Spellings {
 public:
  enum class Kind { kShared, kApart };  // what names become that differ in case only

  Spellings(Kind kind, Findings& findings) : kind_(kind), findings_(findings) {}

  void Add(const Given& given, std::string_view name) {
    if (!known_.emplace(name).second) return;
    const auto [first, isNew] = firstOf_.emplace(Upper(name), First{std::string(name), given});
    if (isNew) return;
    const std::string there =
        Quote(first->second.name) + " on " + findings_.LineOf(first->second.given.element);
    if (kind_ == Kind::kShared) {
      findings_.Add(
          Code::kNameCase, given.element, given.place,
          Quote(name) + " is handed out as " + there + " spells it: the two differ in case only",
          "spell it the same way everywhere");
    } else {
      findings_.Add(
          Code::kNameCase, given.element, given.place,
          Quote(name) + " and " + there + " are two dithers, although they differ in case only",
          "spell it the same way everywhere");
    }
  }

 private:
  struct First {
    std::string name;
    Given given;
  };

  Kind kind_;
  Findings& findings_;
  std::unordered_set<std::string> known_;
  std::unordered_map<std::string, First> firstOf_;
};

class ColorModeRules {
 public:
  explicit ColorModeRules(Findings& findings)
      : findings_(findings),
        settings_(Spellings::Kind::kShared, findings),
        profiles_(Spellings::Kind::kShared, findings),
        dithers_(Spellings::Kind::kApart, findings) {}

  // In the order of the reader, which decides whose spelling stands.
  void Examine(const Element& colorMode) {
    const Element setting = colorMode.First("PrinterSpecificSetting");
    if (setting) {
      const Given given = GivenText(setting);
      if (!Trimmed(given.text).empty()) settings_.Add(given, Trimmed(given.text));
    }
    ExamineProfiles(colorMode);
    ExamineDithers(colorMode);
  }

 private:
  void ExamineProfiles(const Element& colorMode) {
    const Given defaultName = GivenAttribute(colorMode, colorMode.Find("DefaultICCProfile"));
    if (!defaultName.text.empty()) profiles_.Add(defaultName, defaultName.text);
    std::unordered_map<std::string, Element> listed;
    Element all;
    for (Element each = colorMode.First("ICCProfile"); each; each = each.Next("ICCProfile")) {
      const Given profile = GivenText(each);
      ExamineProfile(profile, listed);
      if (IsAll(profile.text)) all = each;
    }
    if (all) return TellAllHides(all, "profile", listed.size() - 1);
    if (defaultName.text.empty() || listed.empty()) return;
    if (listed.find(Upper(defaultName.text)) != listed.end()) return;
    findings_.Add(Code::kProfileDefaultUnlisted, colorMode, defaultName.place,
                  "the default profile " + Quote(defaultName.text) +
                      " is never handed out: it isn't among the profiles of this ColorMode",
                  "add an ICCProfile with this name, or choose another default");
  }

  void ExamineProfile(const Given& profile, std::unordered_map<std::string, Element>& listed) {
    CheckNameBlanks(profile, findings_);
    if (profile.text.empty()) {
      findings_.Add(Code::kProfileEmpty, profile.element,
                    "this ICCProfile is empty: a profile without a name is handed out",
                    "give it a name, or take it out");
    } else {
      profiles_.Add(profile, profile.text);
    }
    const auto [former, isNew] = listed.emplace(Upper(profile.text), profile.element);
    if (isNew) return;
    findings_.Add(Code::kProfileTwice, profile.element, profile.place,
                  Quote(profile.text) + " stands on " + findings_.LineOf(former->second) +
                      " already and counts once",
                  "take one of them out");
  }

  void TellAllHides(const Element& all, const std::string& noun, std::size_t others) {
    if (others == 0) return;
    findings_.Add(Code::kAllHides, all,
                  "\"ALL\" hides " + Count(others, "other " + noun) +
                      " of this ColorMode: hosts get \"ALL\" alone",
                  "keep either \"ALL\" or the names");
  }

  void ExamineDithers(const Element& colorMode) {
    const Given defaultName = GivenAttribute(colorMode, colorMode.Find("DefaultDither"));
    const std::string_view defaultDither = Trimmed(defaultName.text);
    const Element list = colorMode.First("DitherList");
    if (list) {
      DitherListRules(list, *this).Run(defaultName, defaultDither);
    } else if (!defaultDither.empty()) {
      findings_.Add(Code::kDitherDefaultDropped, colorMode, defaultName.place,
                    "the default dither " + Quote(defaultDither) +
                        " is dropped: this ColorMode has no DitherList",
                    "add a DitherList, or take the attribute out");
    }
  }

  class DitherListRules {
   public:
    DitherListRules(const Element& list, ColorModeRules& rules)
        : list_(list), rules_(rules), findings_(rules.findings_) {}

    void Run(const Given& defaultName, std::string_view defaultDither) {
      if (!defaultDither.empty()) rules_.dithers_.Add(defaultName, defaultDither);
      ExamineAttributes();
      for (Element each = list_.First("Dither"); each; each = each.Next("Dither")) {
        const Given name = GivenAttribute(each, each.Find("Name"));
        if (name.text.empty()) {
          findings_.Add(Code::kDitherUnnamed, each, "this dither is skipped: it has no Name",
                        "give it a Name");
        } else {
          ExamineDither(name);
        }
      }
      TellMissing();
      if (supportsAll_) return;
      if (all_) return rules_.TellAllHides(all_, "dither", listed_.size() - 1);
      if (defaultDither.empty() || listed_.find(defaultDither) != listed_.end()) return;
      findings_.Add(Code::kDitherDefaultUnlisted, defaultName.element, defaultName.place,
                    "the default dither " + Quote(defaultDither) +
                        " isn't among the dithers of this ColorMode, but is handed out all the "
                        "same",
                    "add a Dither with this name, or choose another default");
    }

   private:
    void ExamineAttributes() {
      const Attribute misplaced = list_.Find("DefaultDither");
      if (misplaced) {
        findings_.Add(Code::kDitherDefaultMisplaced, list_, misplaced.NamePlace(),
                      "nobody reads DefaultDither in DitherList", "put it on the ColorMode above");
      }
      const Given supportAll = GivenAttribute(list_, list_.Find("SupportAll"));
      if (supportAll.text.empty()) return;
      CheckWholeNumber(supportAll, findings_);
      supportsAll_ = ReadInt(supportAll.text.c_str()) > 0;
      if (!supportsAll_ || !list_.First("Dither")) return;
      findings_.Add(Code::kDithersHidden, list_, supportAll.place,
                    "SupportAll keeps the names back: hosts learn no more of the dithers here than "
                    "their RIP resolutions",
                    "write SupportAll=\"0\" if hosts shall list them");
    }

    void ExamineDither(const Given& name) {
      CheckNameBlanks(name, findings_);
      if (!supportsAll_) rules_.dithers_.Add(name, name.text);
      if (IsAll(name.text)) all_ = name.element;
      const auto [former, isNew] = listed_.emplace(name.element.Find("Name").Value(), name.element);
      if (!isNew) {
        findings_.Add(Code::kDitherTwice, name.element, name.place,
                      "the dither " + Quote(name.text) + " stands on " +
                          findings_.LineOf(former->second) +
                          " already, and only the first RIP resolution is ever found",
                      "take one of them out");
      }
      ExamineRip(name);
    }

    void ExamineRip(const Given& name) {
      const Given rip = GivenAttribute(name.element, name.element.Find("RipResolution"));
      if (!rip.text.empty()) {
        if (CheckResolution(rip, findings_)) {
          withRip_.insert(name.element.Find("Name").Value());
          return ExamineRipName(name);
        }
        findings_.Add(Code::kRipUnusable, rip.element, rip.place,
                      "the RipResolution " + Quote(rip.text) + " of " + Quote(name.text) +
                          " is lost: it isn't positive",
                      "write one positive number, or two with an \"x\" between them");
      } else if (supportsAll_) {
        findings_.Add(Code::kDitherUnused, name.element,
                      "nothing is taken from this dither: SupportAll keeps its name back, and it "
                      "has no RipResolution",
                      "give it a RipResolution, or take it out");
      } else {
        withoutRip_.push_back(name.element);
      }
    }

    // The name is listed whole, but its RIP resolution is kept under the beginning of it.
    void ExamineRipName(const Given& name) {
      constexpr std::size_t kLongest = sizeof DitherResolutionInfo::Name;
      if (name.text.size() <= kLongest) return;
      findings_.Add(Code::kNameCut, name.element, name.place,
                    "the RIP resolution of " + Quote(name.text) +
                        " is never found: the name is longer than " + std::to_string(kLongest) +
                        " bytes",
                    "use a shorter name");
    }

    // Once for the list: in a document that the library wrote no dither has one.
    void TellMissing() {
      std::erase_if(withoutRip_, [&](const Element& dither) {
        return withRip_.find(dither.Find("Name").Value()) != withRip_.end();
      });
      if (withoutRip_.empty()) return;
      const std::size_t others = withoutRip_.size() - 1;
      const std::string more =
          others > 0 ? " and " + std::to_string(others) + " more of this list" : "";
      findings_.Add(
          Code::kRipMissing, withoutRip_.front(),
          "there is no RipResolution for " + Quote(withoutRip_.front().Find("Name").Value()) + more,
          "add the resolution at which jobs are rasterised for it");
    }

    const Element& list_;
    ColorModeRules& rules_;
    Findings& findings_;
    bool supportsAll_ = false;
    Element all_;
    std::unordered_map<std::string_view, Element> listed_;
    std::unordered_set<std::string_view> withRip_;
    std::vector<Element> withoutRip_;
  };

  Findings& findings_;
  Spellings settings_;
  Spellings profiles_;
  Spellings dithers_;
};

void ExamineUnder(const std::vector<ElementNode>& nodes, std::size_t level, ColorModeRules& rules) {
  for (const ElementNode& node : nodes) {
    if (level + 1 == kControlLevels.size()) {
      rules.Examine(node.element);
    } else {
      ExamineUnder(node.children, level + 1, rules);
    }
  }
}

}  // namespace

void CheckColorModes(const ElementNode& control, Findings& findings) {
  ColorModeRules rules(findings);
  ExamineUnder(control.children, 0, rules);
}

}  // namespace check
