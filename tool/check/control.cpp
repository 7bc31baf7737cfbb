// Control_Definition, down to the colour modes.

#include "tool/check/idsets.h"
#include "tool/check/rules.h"

namespace check {

namespace {

class ControlRules {
 public:
  ControlRules(const Lists& lists, Findings& findings) : lists_(lists), findings_(findings) {}

  // The nodes of one level under an element that makes a node itself.
  std::vector<ElementNode> ExamineLevel(std::size_t level, const Element& parent) {
    const ControlLevel& form = kControlLevels[level];
    std::vector<ElementNode> nodes;
    for (Element each = parent.First(form.element); each; each = each.Next(form.element)) {
      const IDSetUse use{each, "ID", form.list, lists_[form.list]};
      ElementNode node{each, CheckIDs(use, findings_), {}};
      if (node.ids.GetSize() == 0) {
        TellNoIDs(use, findings_);
        continue;
      }
      if (level + 1 < kControlLevels.size()) node.children = ExamineLevel(level + 1, each);
      nodes.push_back(std::move(node));
    }
    CheckDefault({parent, form.defaultAttribute, form.list, lists_[form.list]}, nodes, findings_);
    if (nodes.empty()) {
      findings_.Add(Code::kDeadEnd, parent,
                    std::string("nothing can follow this ") + parent.Name() + ": it has no " +
                        form.element + " that is kept",
                    "give it one, or take it out");
    }
    return nodes;
  }

 private:
  const Lists& lists_;
  Findings& findings_;
};

}  // namespace

ElementNode CheckControl(const XMLView& document, const Lists& lists, Findings& findings) {
  ElementNode control;
  control.element = document.Root().First("Control_Definition");
  if (control.element) {
    control.children = ControlRules(lists, findings).ExamineLevel(0, control.element);
  } else {
    findings.Add(Code::kControlMissing, document.Root(),
                 "there is no Control_Definition: nothing can follow an ink",
                 "add the section that says what may be combined");
  }
  return control;
}

}  // namespace check
