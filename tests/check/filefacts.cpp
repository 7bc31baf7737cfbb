// What stands in a file, without a rule of the library or of the examination.

#include <algorithm>
#include <charconv>
#include <iterator>
#include <pugixml.hpp>
#include <set>
#include <sstream>
#include <utility>

#include "qdf/support/text.h"
#include "tests/check/facts.h"

namespace {

using Node = pugi::xml_node;

constexpr int kControlDepth = 5;
constexpr int kSourceDepth = 2;

bool IsElement(const Node& node) { return node.type() == pugi::node_element; }

std::vector<Node> Elements(const Node& parent) {
  std::vector<Node> elements;
  std::copy_if(parent.begin(), parent.end(), std::back_inserter(elements), IsElement);
  return elements;
}

std::string TextOf(const Node& element) {
  std::string text;
  for (const Node part : element.children()) text += part.value();
  return text;
}

// Without the bracket that it begins or ends with.
std::string_view Inside(std::string_view text) {
  text = Trimmed(text);
  if (!text.empty() && text.front() == '(') text.remove_prefix(1);
  if (!text.empty() && text.back() == ')') text.remove_suffix(1);
  return text;
}

// An id list as its ids, one fact each; as it stands when it has none of the usual forms.
std::set<std::string> IDFacts(const std::string& text) {
  const std::size_t dash = text.find('-');
  std::string_view listed = text;
  const std::string_view lead = Trimmed(listed.substr(0, dash));
  const bool isShort = EqualNoCase(lead, "ALL") || (lead.empty() && dash != std::string::npos);
  if (isShort) listed.remove_prefix(std::min(dash, text.size() - 1) + 1);
  const std::string ids(Inside(listed));
  if (ids.find_first_not_of("0123456789, ") != std::string::npos) return {text};
  if (isShort) return {};  // which ids these are is for the reader to know
  std::istringstream numbers(Shown(ids));
  return {std::istream_iterator<std::string>(numbers), {}};
}

class FileFacts {
 public:
  Facts Of(const Node& root) {
    for (const Node& section : Elements(root)) {
      const std::string name = section.name();
      Add(name);
      if (name == "Definition") {
        NoAttributes(section, name);
        NoText(section, name);
        for (const Node& child : Elements(section)) Value(child, "");
      } else {
        Attributes(section, name);
        Nodes(section, name, name == "Control_Definition" ? kControlDepth : kSourceDepth);
      }
    }
    return std::move(facts_);
  }

 private:
  void Add(std::string fact) { facts_.push_back(std::move(fact)); }

  // Of an element that has no attributes, or no text of its own.
  void NoAttributes(const Node& element, const std::string& place) {
    for (const pugi::xml_attribute at : element.attributes()) Add(place + " @" + at.name());
  }
  void NoText(const Node& element, const std::string& place) {
    if (!Trimmed(TextOf(element)).empty()) Add(place + " has text");
  }

  // A text, a list of entries, or the colorants of an entry.
  void Value(const Node& element, const std::string& place) {
    const std::string name = element.name();
    const std::string here = place + name;
    const bool isList = name.ends_with("List");
    NoAttributes(element, here);
    if (isList) NoText(element, here);
    Add(isList ? here : here + "=" + Shown(TextOf(element)));
    for (const Node& entry : Elements(element)) {
      Add(here + " entry");
      NoText(entry, here + " entry");
      for (const pugi::xml_attribute at : entry.attributes()) {
        if (*at.value() != 0) Add(here + " entry @" + at.name() + "=" + Shown(at.value()));
      }
      for (const Node& value : Elements(entry)) Value(value, here + " ");
    }
  }

  void Attributes(const Node& element, const std::string& place) {
    NoText(element, place);
    for (const pugi::xml_attribute at : element.attributes()) {
      const std::string name = at.name();
      const std::string value = at.value();
      if (name == "ID" || name == "MarginIDList") {
        for (const std::string& id : IDFacts(value)) Add(place + " " + name + " " + id);
      } else if (!value.empty()) {
        // Blanks around a default dither are lost, and nothing with them.
        const std::string_view kept = name == "DefaultDither" ? Trimmed(value) : value;
        Add(place + " " + name + "=" + Shown(std::string(kept)));
      }
    }
  }

  // Every element down to that depth, whatever its name, by its number under its parent.
  void Nodes(const Node& parent, const std::string& place, int depth) {
    int number = 0;
    for (const Node& element : Elements(parent)) {
      const std::string here = place + "/" + std::to_string(number++);
      Add(here);
      Attributes(element, here);
      if (depth > 1) {
        Nodes(element, here, depth - 1);
      } else {
        Leaves(element, here);
      }
    }
  }

  // Names that are repeated stand once in the object.
  void Leaves(const Node& colorMode, const std::string& place) {
    std::set<std::string> leaves;
    for (const Node& leaf : Elements(colorMode)) {
      const std::string name = leaf.name();
      const std::string text = TextOf(leaf);
      if (name == "DitherList") {
        NoText(leaf, place);
        for (const pugi::xml_attribute at : leaf.attributes()) {
          if (at.name() != std::string("SupportAll")) Add(place + " DitherList " + at.name());
        }
      } else if (name != "PrinterSpecificSetting") {
        leaves.insert(" " + name + " " + text);
      } else if (!Trimmed(text).empty()) {
        leaves.insert(" " + name + " " + std::string(Trimmed(text)));
      }
      for (const Node& dither : Elements(leaf)) {
        const std::string rip = dither.attribute("RipResolution").value();
        const std::string key =
            std::string(" ") + dither.name() + " " + dither.attribute("Name").value();
        leaves.insert(key);
        if (!rip.empty()) leaves.insert(key + " at " + Shown(rip));
      }
    }
    for (const std::string& leaf : leaves) Add(place + leaf);
  }

  Facts facts_;
};

}  // namespace

std::string Shown(const std::string& text) {
  constexpr std::string_view kBetween = ",xX+";
  std::ostringstream shown;
  const char* between = "";
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    double number = 0.0;
    if (IsSpace(*at) || kBetween.find(*at) != std::string_view::npos) {
      ++at;
      continue;
    }
    const auto [next, error] = std::from_chars(at, end, number);
    if (error != std::errc()) return text;
    shown << std::exchange(between, " ") << number;
    at = next;
  }
  return shown.str().empty() ? text : shown.str();
}

Facts FactsOfFile(const std::string& path) {
  pugi::xml_document document;
  document.load_file(path.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single);
  Facts facts = FileFacts().Of(document.document_element());
  std::sort(facts.begin(), facts.end());
  return facts;
}
