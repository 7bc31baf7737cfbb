// Elements, attributes and texts that nobody reads.

#include <algorithm>
#include <unordered_map>

#include "tool/check/grammar.h"
#include "tool/check/nearest.h"
#include "tool/check/rules.h"

namespace check {

namespace {

std::string In(const Element& element) { return " in " + Brief(element.Name()); }

// The prefixes of namespaces that are declared where an examination stands.
class Prefixes {
 public:
  void Enter(const Element& element) { Count(element, 1); }
  void Leave(const Element& element) { Count(element, -1); }

  // Whether an attribute speaks to XML tools and never to the reader: one of XML itself or of a
  // namespace that is declared.
  bool IsForXMLTools(std::string_view name) const {
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos) return name == "xmlns";
    const std::string_view prefix = name.substr(0, colon);
    if (prefix == "xmlns" || prefix == "xml") return true;
    const auto declared = declared_.find(prefix);
    return declared != declared_.end() && declared->second > 0;
  }

 private:
  void Count(const Element& element, int step) {
    constexpr std::string_view kDeclares = "xmlns:";
    for (Attribute at = element.FirstAttribute(); at; at = at.Next()) {
      const std::string_view name = at.Name();
      if (name.starts_with(kDeclares)) declared_[name.substr(kDeclares.size())] += step;
    }
  }

  std::unordered_map<std::string_view, int> declared_;  // how often around this place
};

class StructureRules {
 public:
  explicit StructureRules(Findings& findings) : findings_(findings) {}

  void Run(const Element& root) {
    const Form& form = grammar_.Root();
    if (root.Name() != form.name) {
      findings_.Add(Code::kRootName, root,
                    "nobody looks at the name of the root element, " + Brief(root.Name()),
                    "write " + std::string(form.name) + ", as the library does");
    }
    Examine(root, form);
  }

 private:
  void Examine(const Element& element, const Form& form) {
    prefixes_.Enter(element);
    ExamineAttributes(element, form);
    if (&form != &text_ && element.HasText()) {
      findings_.Add(Code::kTextUnread, element, element.TextPlace(),
                    "nobody reads text" + In(element),
                    "take it out, or put it in the element that it is meant for");
    }
    std::vector<Element> seen(form.children.size());
    for (Element child = element.First(); child; child = child.Next()) {
      const Form::Child* known = form.Find(child.Name());
      if (known == nullptr) {
        TellUnknown(child, form);
        continue;
      }
      Element& first = seen[static_cast<std::size_t>(known - form.children.data())];
      if (!known->eachTime && first) {
        findings_.Add(Code::kElementTwice, child,
                      std::string("only the first ") + child.Name() + In(element) + " counts, on " +
                          findings_.LineOf(first) + "; this one isn't read",
                      "merge the two, or take one out");
        continue;
      }
      first = child;
      if (form.hasEntries && child.Name() != known->name) TellEntryName(child, *known);
      Examine(child, known->form != nullptr ? *known->form : text_);
    }
    prefixes_.Leave(element);
  }

  void ExamineAttributes(const Element& element, const Form& form) {
    const auto& known = form.attributes;
    for (Attribute at = element.FirstAttribute(); at; at = at.Next()) {
      const std::string_view name = at.Name();
      if (std::find(known.begin(), known.end(), name) != known.end() ||
          prefixes_.IsForXMLTools(name)) {
        continue;
      }
      std::string hint = DidYouMean(name, known);
      if (hint.empty() && !form.hasEntries && form.Find(name) != nullptr) {
        hint = "it is read as a child element here, not as an attribute";
      }
      if (hint.empty()) hint = "take it out";
      findings_.Add(Code::kAttributeUnknown, element, at.NamePlace(),
                    "nobody reads the attribute " + Brief(name) + In(element), hint);
    }
  }

  void TellUnknown(const Element& child, const Form& form) {
    const std::string name = child.Name();
    std::string message = "nobody reads " + Brief(name) + In(child.Parent());
    const std::size_t under = child.CountUnder();
    if (under > 0) message += ", nor what is under it (" + Count(under, "element") + ')';
    findings_.Add(Code::kElementUnknown, child, message, HintForUnknown(name, form));
  }

  std::string HintForUnknown(const std::string& name, const Form& form) {
    const auto& attributes = form.attributes;
    if (std::find(attributes.begin(), attributes.end(), name) != attributes.end()) {
      return "it is read as an attribute here, not as a child element";
    }
    std::vector<std::string_view> known;
    for (const Form::Child& child : form.children) known.push_back(child.name);
    std::string hint = DidYouMean(name, known);
    if (!hint.empty()) return hint;
    for (const std::string_view parent : grammar_.ParentsOf(name)) {
      hint += (hint.empty() ? name + " is read in " : " or ") + std::string(parent);
    }
    return hint.empty() ? "take it out" : hint;
  }

  void TellEntryName(const Element& entry, const Form::Child& known) {
    findings_.Add(
        Code::kEntryName, entry,
        "nobody looks at the name of an entry" + In(entry.Parent()) + ", " + Brief(entry.Name()),
        "write " + std::string(known.name) + ", as the library does");
  }

  Findings& findings_;
  Grammar grammar_;
  Prefixes prefixes_;
  Form text_;  // of an element that holds only text
};

}  // namespace

void CheckStructure(const XMLView& document, Findings& findings) {
  StructureRules(findings).Run(document.Root());
}

}  // namespace check
