// What is lost when the library writes the document: item by item, of what it keeps in memory. What
// the reader drops already is told by the other rules.

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "qdf/definition/records.h"
#include "qdf/definition/resolutionvalue.h"
#include "qdf/support/numbers.h"
#include "qdf/support/text.h"
#include "tool/check/rules.h"
#include "tool/check/values.h"

namespace check {

namespace {

constexpr const char* kKeep = "keep this file apart from the written one";

bool IsGiven(const Element& element, const char* attribute) {
  return *element.Find(attribute).Value() != '\0';
}

// Whether the reader keeps the RIP resolution of a dither.
bool HasRip(const Element& dither) {
  double x = 0.0;
  double y = 0.0;
  ReadResolutionValue(dither.Find("RipResolution").Value(), x, y);
  return x > 0.0 && y > 0.0;
}

// Whether another entry is preselected without the default: the first of the list, or of those of
// its entries that are listed.
bool IsLost(const Element& element, const char* attribute, const KeptList& list,
            const ADWordArray* listed) {
  const int id = ReadInt(element.Find(attribute).Value());
  const auto isListed = [&](int each) {
    return listed == nullptr || std::find(listed->begin(), listed->end(),
                                          static_cast<std::uint32_t>(each)) != listed->end();
  };
  if (list.byID.find(id) == list.byID.end() || !isListed(id)) return false;
  const auto first = std::find_if(list.entries.begin(), list.entries.end(),
                                  [&](const KeptEntry& entry) { return isListed(entry.id); });
  return first->id != id;
}

class WriteLossRules {
 public:
  WriteLossRules(const Lists& lists, Findings& findings) : lists_(lists), findings_(findings) {}

  void ExamineAsides(const XMLView& document) {
    for (const Place place : document.Asides()) {
      findings_.AddAt(Code::kWriteAside, place,
                      "a write loses this: comments, instructions and document types aren't kept",
                      kKeep);
    }
  }

  void ExamineLists() {
    for (const KeptEntry& entry : lists_[kResolutions].entries) ExamineResolution(entry);
    for (const KeptEntry& entry : lists_[kMediaSizes].entries) {
      ExamineDecimals(entry.element.First("Size"));
    }
    for (const KeptEntry& entry : lists_[kMargins].entries) {
      ExamineDecimals(entry.element.First("Size"));
    }
    const Element definition = lists_[kInks].section.Parent();
    ExamineDecimals(definition.First("MinAndMaxMediaSize"));
    ExamineDecimals(definition.First("MinMarginSize"));
    for (const KeptEntry& entry : lists_[kColorModes].entries) {
      const Element colorants = entry.element.First("ColorantList");
      for (Element each = colorants.First(); each; each = each.Next()) ExamineColorant(each);
    }
  }

  void ExamineControl(const ElementNode& control) {
    if (control.children.empty()) return;
    if (IsLost(control.element, "DefaultInk", lists_[kInks], nullptr)) {
      findings_.Add(Code::kWriteDefaultInk, control.element,
                    control.element.Find("DefaultInk").NamePlace(),
                    "a write loses DefaultInk: the first ink of InkList is preselected then",
                    "put the ink first there, or " + std::string(kKeep));
    }
    const ElementNode& first = control.children.front();
    for (std::size_t i = 1; i < control.children.size(); ++i) {
      const Element& ink = control.children[i].element;
      findings_.Add(Code::kWriteInk, ink,
                    "a write loses this Ink with the " + Count(ink.CountUnder(), "element") +
                        " under it: only the Ink on " + findings_.LineOf(first.element) +
                        " is kept",
                    "put all inks that share a tree into one Ink");
    }
    ExamineNode(first, 1);
  }

  void ExamineSources(const ElementNode& sources) {
    FirstNodes firstSources(sources.children);
    std::unordered_map<const ElementNode*, FirstNodes> firstSizes;
    for (const ElementNode& source : sources.children) {
      ExamineIDList(source, "ID");
      const ElementNode& answers = *firstSources.Find(source.ids.GetAt(0));
      const auto sizes = firstSizes.try_emplace(&answers, answers.children).first;
      for (const ElementNode& size : source.children) {
        ExamineSize(size, sizes->second.Find(size.ids.GetAt(0)));
      }
    }
  }

 private:
  // The first of some nodes that holds an id.
  class FirstNodes {
   public:
    explicit FirstNodes(const std::vector<ElementNode>& nodes) {
      for (const ElementNode& node : nodes) {
        for (const std::uint32_t id : node.ids) first_.emplace(id, &node);
      }
    }
    const ElementNode* Find(std::uint32_t id) const {
      const auto found = first_.find(id);
      return found != first_.end() ? found->second : nullptr;
    }

   private:
    std::unordered_map<std::uint32_t, const ElementNode*> first_;
  };

  void ExamineResolution(const KeptEntry& entry) {
    const Element value = entry.element.First("Value");
    if (!value) return;
    const Given given = GivenText(value);
    double x = 0.0;
    double y = 0.0;
    ReadResolutionValue(given.text, x, y);
    if (TruncateToInt(x) == x && TruncateToInt(y) == y) return;
    findings_.Add(Code::kWriteFraction, value, given.place,
                  "a write keeps only the whole numbers of the Value " + Quote(given.text),
                  "use whole numbers");
  }

  void ExamineDecimals(const Element& element) {
    if (!element) return;
    const Given given = GivenText(element);
    double numbers[4] = {};
    ScanDoubles(given.text.c_str(), std::array{&numbers[0], &numbers[1], &numbers[2], &numbers[3]});
    const bool kept = std::all_of(std::begin(numbers), std::end(numbers), [](double number) {
      AString written;
      return std::isnan(number) || ReadDouble(View(written.Format("%f", number))) == number;
    });
    if (kept) return;
    findings_.Add(Code::kWriteDecimals, element, given.place,
                  "a write keeps six decimals of " + given.name + ' ' + Quote(given.text),
                  "use six decimals at most");
  }

  void ExamineColorant(const Element& colorant) {
    const ANewColorOpt fresh;
    const auto differs = [&](const char* name, double usual) {
      return IsGiven(colorant, name) && ReadDouble(colorant.Find(name).Value()) != usual;
    };
    std::string lost;
    const auto add = [&](const char* name, bool isLost) {
      if (!isLost) return;
      if (!lost.empty()) lost += ", ";
      lost += name + (' ' + Quote(colorant.Find(name).Value()));
    };
    add("IsPrint", differs("IsPrint", fresh.Colorant.IsPrint));
    add("Shape",
        IsGiven(colorant, "Shape") && FieldText(fresh.Shape) != colorant.Find("Shape").Value());
    add("Frequency", differs("Frequency", double{fresh.Frequency}));
    // Also the usual angle: a record without the attribute lacks the second copy of it.
    add("Angle", IsGiven(colorant, "Angle"));
    if (lost.empty()) return;
    findings_.Add(Code::kWriteScreen, colorant, "a write loses " + lost + " of this colorant",
                  kKeep);
  }

  void ExamineNode(const ElementNode& node, std::size_t level) {
    ExamineIDList(node, "ID");
    if (level == kControlLevels.size()) return ExamineColorMode(node.element);
    for (const ElementNode& child : node.children) ExamineNode(child, level + 1);
  }

  // `node` has the ids that the reader takes from the attribute.
  void ExamineIDList(const ElementNode& node, const char* attribute) {
    const Attribute given = node.element.Find(attribute);
    const IDListText text = SplitIDList(given.Value());
    if (!text.all && !text.exclusion) return;
    const bool negative = std::any_of(node.ids.begin(), node.ids.end(), [](std::uint32_t id) {
      return static_cast<std::int32_t>(id) < 0;
    });
    findings_.Add(
        Code::kWriteIDList, node.element, given.ValuePlace(),
        "a write turns the " + std::string(attribute) + ' ' + Quote(given.Value()) +
            " into the ids that it stands for today" +
            (negative ? ", and the \"-\" of a negative one makes an exclusion of them" : ""),
        negative ? "give all entries positive IDs" : kKeep);
  }

  void ExamineColorMode(const Element& colorMode) {
    const Element list = colorMode.First("DitherList");
    if (!list) return;
    if (!Trimmed(colorMode.Find("DefaultDither").Value()).empty()) {
      findings_.Add(
          Code::kWriteDefaultDither, colorMode, colorMode.Find("DefaultDither").NamePlace(),
          "a write loses DefaultDither: it goes to DitherList, where nobody reads it", kKeep);
    }
    std::size_t rips = 0;
    std::size_t small = 0;
    bool all = false;
    for (Element each = list.First("Dither"); each; each = each.Next("Dither")) {
      const std::string_view name = each.Find("Name").Value();
      if (name.empty()) continue;
      if (HasRip(each)) ++rips;
      all = all || EqualNoCase(name, "ALL");
      if (std::any_of(name.begin(), name.end(), [](char c) { return UpperChar(c) != c; })) ++small;
    }
    TellDithers(list, rips, small, all);
  }

  void TellDithers(const Element& list, std::size_t rips, std::size_t small, bool all) {
    const bool supportsAll = ReadInt(list.Find("SupportAll").Value()) > 0;
    if (rips > 0) {
      findings_.Add(Code::kWriteRip, list, "a write loses " + Count(rips, "RIP resolution"), kKeep);
    }
    if (small > 0 && !supportsAll) {
      findings_.Add(Code::kWriteDitherCase, list,
                    "a write turns " + Count(small, "dither name") + " to capitals",
                    "write them in capitals in the first place");
    }
    if (supportsAll) {
      findings_.Add(Code::kWriteSupportAll, list, list.Find("SupportAll").NamePlace(),
                    "a write turns SupportAll to 0", kKeep);
    } else if (all) {
      findings_.Add(Code::kWriteSupportAll, list,
                    "a write turns the dither \"ALL\" into SupportAll=\"1\", and no name of this "
                    "list is read then",
                    kKeep);
    }
  }

  // `answers` is where a write finds the margins, null when it finds none.
  void ExamineSize(const ElementNode& size, const ElementNode* answers) {
    ExamineIDList(size, "ID");
    if (answers != &size) {
      findings_.Add(Code::kWriteMargins, size.element,
                    "a write " +
                        (answers == nullptr ? std::string("loses the margins of this MediaSize")
                                            : "gives this MediaSize the margins of that on " +
                                                  findings_.LineOf(answers->element)) +
                        ": an earlier element answers for its first ids",
                    "name each id in one element only");
    }
    if (size.children.empty()) return;
    ExamineIDList(size.children.front(), "MarginIDList");
    const ADWordArray& listed = size.children.front().ids;
    if (!IsLost(size.element, "DefaultMarginID", lists_[kMargins], &listed)) return;
    findings_.Add(Code::kWriteDefaultMargin, size.element,
                  size.element.Find("DefaultMarginID").NamePlace(),
                  "a write loses DefaultMarginID: the first of the margin sets is preselected then",
                  "put the set first in MarginInfoList, or " + std::string(kKeep));
  }

  const Lists& lists_;
  Findings& findings_;
};

}  // namespace

void CheckWriteLoss(const XMLView& document, const Kept& kept, Findings& findings) {
  WriteLossRules rules(kept.lists, findings);
  rules.ExamineAsides(document);
  rules.ExamineLists();
  rules.ExamineControl(kept.control);
  rules.ExamineSources(kept.sources);
}

}  // namespace check
