// MediaSource_Control.

#include <unordered_map>

#include "tool/check/idsets.h"
#include "tool/check/rules.h"

namespace check {

namespace {

// Knows which element answers for an id: the first that holds it, and no other is ever asked.
class FirstAnswers {
 public:
  FirstAnswers(ListKind kind, Findings& findings) : kind_(kind), findings_(findings) {}

  void Add(const ElementNode& node) {
    ADWordArray taken;
    Element by;
    for (const std::uint32_t id : node.ids) {
      const auto [first, isNew] = first_.emplace(id, node.element);
      if (isNew) continue;
      if (taken.GetSize() == 0) by = first->second;
      taken.Add(id);
    }
    if (taken.GetSize() > 0) Tell(node, taken, by);
  }

 private:
  void Tell(const ElementNode& node, const ADWordArray& taken, const Element& by) {
    const std::string name = node.element.Name();
    const std::string first = FormOf(kind_).entry + (' ' + std::to_string(IDOf(taken)));
    const std::string answers = "the " + name + " on " + findings_.LineOf(by) + " answers";
    const Place place = node.element.Find("ID").ValuePlace();
    if (taken.GetSize() == node.ids.GetSize()) {
      findings_.Add(Code::kSourceShadowed, node.element, place,
                    "this " + name + " is never looked at: " + answers + " for " + first +
                        (taken.GetSize() > 1 ? " and the others" : ""),
                    "merge the two, or take one out");
    } else {
      findings_.Add(Code::kSourceOverlaps, node.element, place,
                    "for " + first + " this " + name + " isn't looked at: " + answers,
                    "take the id out here, if that is what is meant");
    }
  }

  static int IDOf(const ADWordArray& ids) { return static_cast<int>(ids.GetAt(0)); }

  ListKind kind_;
  Findings& findings_;
  std::unordered_map<std::uint32_t, Element> first_;
};

class MediaSourceRules {
 public:
  MediaSourceRules(const Lists& lists, Findings& findings) : lists_(lists), findings_(findings) {}

  std::vector<ElementNode> Run(const Element& section) {
    const auto examineSizes = [this](ElementNode& source) {
      source.children =
          ExamineLevel(source.element, {"MediaSize", "DefaultMediaSizeID", kMediaSizes},
                       [this](ElementNode& size) { ExamineMargins(size.element, size); });
    };
    return ExamineLevel(section, {"MediaSource", "DefaultMediaSourceID", kMediaSources},
                        examineSizes);
  }

 private:
  IDSetUse Use(const Element& element, const char* attribute, ListKind kind) const {
    return {element, attribute, kind, lists_[kind]};
  }

  struct LevelForm {
    const char* element;
    const char* defaultAttribute;  // of the element above
    ListKind kind;
  };

  // `examineBelow` takes each node that has ids.
  template <class ExamineBelow>
  std::vector<ElementNode> ExamineLevel(const Element& above, const LevelForm& form,
                                        ExamineBelow examineBelow) {
    std::vector<ElementNode> nodes;
    FirstAnswers answers(form.kind, findings_);
    for (Element each = above.First(form.element); each; each = each.Next(form.element)) {
      const IDSetUse use = Use(each, "ID", form.kind);
      ElementNode node{each, CheckIDs(use, findings_), {}};
      if (node.ids.GetSize() == 0) {
        TellNoIDs(use, findings_);
        continue;
      }
      answers.Add(node);
      examineBelow(node);
      nodes.push_back(std::move(node));
    }
    FinishLevel(above, form.defaultAttribute, form.kind, nodes);
    return nodes;
  }

  void ExamineMargins(const Element& element, ElementNode& size) {
    const IDSetUse use = Use(element, "MarginIDList", kMargins);
    ElementNode margins{element, CheckIDs(use, findings_), {}};
    if (margins.ids.GetSize() > 0) {
      size.children.push_back(std::move(margins));
      CheckDefault(Use(element, "DefaultMarginID", kMargins), size.children, findings_);
      return;
    }
    const Attribute attribute = element.Find("MarginIDList");
    const bool isGiven = attribute || element.Find("DefaultMarginID");
    if (!isGiven && lists_[kMargins].entries.empty()) return;
    findings_.Add(
        Code::kSizeNoMargins, element, attribute ? attribute.ValuePlace() : element.NamePlace(),
        "this MediaSize has no margins: " + WhyNoIDs(use), "name its margin sets in MarginIDList");
  }

  void FinishLevel(const Element& element, const char* attribute, ListKind kind,
                   const std::vector<ElementNode>& below) {
    CheckDefault(Use(element, attribute, kind), below, findings_);
    if (!below.empty()) return;
    findings_.Add(Code::kDeadEnd, element,
                  std::string("this ") + element.Name() + " offers no " + FormOf(kind).entry,
                  "give it one, or take it out");
  }

  const Lists& lists_;
  Findings& findings_;
};

}  // namespace

ElementNode CheckMediaSources(const XMLView& document, const Lists& lists, Findings& findings) {
  const Element section = document.Root().First("MediaSource_Control");
  ElementNode sources;
  if (!section) {
    for (const ListKind kind : {kMediaSources, kMediaSizes, kMargins}) {
      if (lists[kind].entries.empty()) continue;
      findings.Add(Code::kSourcesMissing, lists[kind].section,
                   "there is no MediaSource_Control: nothing of " +
                       std::string(FormOf(kind).section) + " is ever offered",
                   "add the section that says what each media source offers");
      break;
    }
  } else if (lists[kMediaSources].entries.empty()) {
    findings.Add(Code::kSourcesUnread, section,
                 "MediaSource_Control isn't read: MediaSourceList has no entry",
                 "add the media sources to Definition, or take the section out");
  } else {
    sources.element = section;
    sources.children = MediaSourceRules(lists, findings).Run(section);
  }
  return sources;
}

}  // namespace check
