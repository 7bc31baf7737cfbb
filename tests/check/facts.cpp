// A file and its document as heaps of short texts: each value with its list or with the place of
// its node. The file is counted without a rule of the library or of the examination.

#include "tests/check/facts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <pugixml.hpp>
#include <set>
#include <sstream>
#include <vector>

#include "qdf/support/text.h"
#include "tool/command.h"
#include "tool/reportline.h"

namespace {

using Facts = std::vector<std::string>;
using Node = pugi::xml_node;

// The numbers of a text of nothing but numbers, however they are spelled; any other text whole,
// without the blanks around it.
Facts ValuesOf(std::string_view text) {
  text = Trimmed(text);
  Facts numbers;
  for (const char* at = text.begin(); at != text.end();) {
    double number = 0.0;
    const auto [next, error] = std::from_chars(at, text.end(), number);
    const bool isBetween = std::string_view(" \t\n,xX+()").find(*at) != std::string_view::npos;
    if (!isBetween && error != std::errc()) return {std::string(text)};
    if (!isBetween) numbers.push_back((std::ostringstream() << number).str());
    at = isBetween ? at + 1 : next;
  }
  return numbers.empty() && !text.empty() ? Facts{std::string(text)} : numbers;
}

// Each id of a list once, as far as it has one of the usual forms.
Facts IDsOf(const std::string& text) {
  const std::size_t dash = text.find('-');
  const std::string_view lead = Trimmed(std::string_view(text).substr(0, dash));
  const bool isShort = EqualNoCase(lead, "ALL") || (lead.empty() && dash != std::string::npos);
  const std::string ids = isShort ? text.substr(std::min(dash, text.size() - 1) + 1) : text;
  if (ids.find_first_not_of("0123456789, ()") != std::string::npos) return {text};
  if (isShort) return {};  // which ids these are is for the reader to know
  const Facts numbers = ValuesOf(ids);
  const std::set<std::string> unique(numbers.begin(), numbers.end());
  return {unique.begin(), unique.end()};
}

void Add(Facts& facts, const std::string& place, const Facts& values) {
  for (const std::string& value : values) facts.push_back(place + " " + value);
}

std::vector<Node> Elements(const Node& parent) {
  std::vector<Node> elements;
  std::copy_if(parent.begin(), parent.end(), std::back_inserter(elements),
               [](const Node& node) { return node.type() == pugi::node_element; });
  return elements;
}

std::string TextOf(const Node& element) {
  std::string text;
  for (const Node part : element.children()) text += part.value();
  return text;
}

// The text and the attributes of an element. The margins of a size are a node below its own, and 0
// is no default.
void AddOwn(Facts& facts, const Node& element, const std::string& place) {
  Add(facts, place, ValuesOf(TextOf(element)));
  for (const pugi::xml_attribute at : element.attributes()) {
    const std::string name = at.name();
    const bool isList = name == "ID" || name == "MarginIDList";
    const bool isMargin = name.find("Margin") != std::string::npos;
    const Facts values = isList ? IDsOf(at.value()) : ValuesOf(at.value());
    const bool isNone = name.starts_with("Default") && values == Facts{"0"};
    if (!isNone) Add(facts, isMargin ? place + "/0" : place, values);
  }
}

void AddAll(Facts& facts, const Node& element, const std::string& place) {
  AddOwn(facts, element, place);
  for (const Node& child : Elements(element)) AddAll(facts, child, place);
}

// What stands under a colour mode. Names that are repeated stand once in the document.
void AddLeaves(Facts& facts, const Node& colorMode, const std::string& place) {
  std::set<std::pair<std::string, std::string>> leaves;
  for (const Node& leaf : Elements(colorMode)) {
    leaves.insert({leaf.name(), TextOf(leaf)});
    for (const pugi::xml_attribute at : leaf.attributes()) {
      if (at.name() != std::string_view("SupportAll")) leaves.insert({at.name(), at.value()});
    }
    for (const Node& dither : Elements(leaf)) {
      const std::string name = dither.attribute("Name").value();
      leaves.insert({dither.name(), name});
      leaves.insert({"RIP resolution of " + name, dither.attribute("RipResolution").value()});
    }
  }
  for (const auto& [kind, text] : leaves) Add(facts, place, ValuesOf(text));
}

// Every element down to that depth, whatever its name, by its number under its parent.
void AddNodes(Facts& facts, const Node& parent, const std::string& place, int depth) {
  AddOwn(facts, parent, place);
  if (depth == 0) return AddLeaves(facts, parent, place);
  int number = 0;
  for (const Node& element : Elements(parent)) {
    facts.push_back(place + "/" + std::to_string(number++));
    AddNodes(facts, element, std::string(facts.back()), depth - 1);
  }
}

Facts FactsOfFile(const std::string& path) {
  pugi::xml_document file;
  file.load_file(path.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single);
  Facts facts;
  for (const Node& section : Elements(file.document_element())) {
    const std::string name = section.name();
    facts.push_back(name);
    if (name != "Definition") {
      AddNodes(facts, section, name, name == "Control_Definition" ? 5 : 2);
      continue;
    }
    AddOwn(facts, section, name);
    for (const Node& child : Elements(section)) {
      facts.emplace_back(child.name());
      AddAll(facts, child, child.name());
    }
  }
  return facts;
}

// Nodes have fields that programs alone see, and so have colorants: those that no document gives.
void AddShown(Facts& facts, const Value& value, const std::string& place) {
  if (const List* list = AsList(value)) {
    for (const Value& each : *list) AddShown(facts, each, place);
    return;
  }
  const Object* object = AsObject(value);
  if (object == nullptr) return Add(facts, place, ValuesOf(LineText(value)));
  for (const Field& field : object->fields) {
    const bool isOfNode = place.find('/') != std::string::npos;
    if (field.key != std::string_view(kChildren)) {
      if (field.label != nullptr || isOfNode) AddShown(facts, field.value, place);
      continue;
    }
    int number = 0;
    for (const Value& child : *AsList(field.value)) {
      facts.push_back(place + "/" + std::to_string(number++));
      AddShown(facts, child, std::string(facts.back()));
    }
  }
}

Facts FactsOfDocument(const std::string& path) {
  // In the order of the reports, which begin with the document itself.
  constexpr std::array kPlaces = {"Definition",
                                  "ProductType",
                                  "TranslationTable",
                                  "CustomMediaFile",
                                  "MinAndMaxMediaSize",
                                  "MinMarginSize",
                                  "InkList",
                                  "MediaList",
                                  "PrintModeList",
                                  "ResolutionList",
                                  "ColorModeList",
                                  "MediaSourceList",
                                  "MediaSizeList",
                                  "MarginInfoList",
                                  "",
                                  "Control_Definition",
                                  "MediaSource_Control"};
  Arguments arguments;
  arguments.Set("DOC", {path});
  Facts facts;
  std::size_t field = 0;
  for (const Command* command : {&kShowCommand, &kTreeCommand}) {
    for (const Field& shown : command->run(arguments).report.fields) {
      const std::string place = kPlaces.at(field++);
      facts.push_back(place);
      AddShown(facts, shown.value, place);
    }
  }
  return facts;
}

}  // namespace

std::string LostOf(const std::string& path) {
  Facts wanted = FactsOfFile(path);
  Facts there = FactsOfDocument(path);
  std::sort(wanted.begin(), wanted.end());
  std::sort(there.begin(), there.end());
  Facts lost;
  std::set_difference(wanted.begin(), wanted.end(), there.begin(), there.end(),
                      std::back_inserter(lost));
  return lost.empty() ? "" : lost.front();
}
