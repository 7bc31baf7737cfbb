#include "tests/check/mutations.h"

#include <pugixml.hpp>
#include <sstream>
#include <vector>

#include "tests/documents.h"

namespace {

using Random = std::mt19937;

const auto kNames = Split(
    "Definition|InkList|InkDef|ID|MediaList|ColorantList|Size|DisplayName|Ink|Media|ColorMode|"
    "ICCProfile|DitherList|Dither|MediaSize|Dithre");
const auto kAttributes = Split(
    "ID|DefaultMedia|DefaultICCProfile|DefaultDither|Name|RipResolution|SupportAll|MarginIDList|"
    "DefaultMedai");
const auto kValues = Split(
    "|0|1|2|3|-1|1,2|2,1,1|ALL|all|-(1)|1-2|x|(1),2| 2 |2x|-|600x300|0x600|1.5|9 9 9 9|595,1|Fine|"
    "FINE|Plain.icc|PLAIN.ICC");
const auto kMarks = Split(
    "<|>|\"|&amp;|&|-|(|)|,|/>|\n| |x|<!--|-->|]]>|<![CDATA[|ALL|nan|inf|1e9|<?p ?>|<!DOCTYPE a>|"
    "\xEF\xBB\xBF");

std::size_t Below(Random& random, std::size_t end) { return random() % end; }

const char* Choose(Random& random, const std::vector<std::string>& words) {
  return words[Below(random, words.size())].c_str();
}

std::vector<pugi::xml_node> ElementsUnder(const pugi::xml_node& root) {
  std::vector<pugi::xml_node> elements{root};
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const pugi::xml_node element = elements[i];
    for (const pugi::xml_node child : element.children()) {
      if (child.type() == pugi::node_element) elements.push_back(child);
    }
  }
  return elements;
}

void MutateAttribute(pugi::xml_node element, Random& random) {
  std::vector<pugi::xml_attribute> attributes;
  for (const pugi::xml_attribute each : element.attributes()) attributes.push_back(each);
  const char* name = Choose(random, kAttributes);
  const char* value = Choose(random, kValues);
  const std::size_t kind = attributes.empty() ? 0 : Below(random, 6);
  pugi::xml_attribute attribute =
      attributes.empty() ? pugi::xml_attribute() : attributes[Below(random, attributes.size())];
  if (kind == 0 && !element.attribute(name)) element.append_attribute(name) = value;
  if (kind == 1) element.remove_attribute(attribute);
  if (kind == 2 && !element.attribute(name)) attribute.set_name(name);
  if (kind > 2) attribute.set_value(value);
}

void MutateText(pugi::xml_node element, Random& random) {
  pugi::xml_node text = element.first_child();
  if (text.type() != pugi::node_pcdata) text = element.prepend_child(pugi::node_pcdata);
  const std::string longer = text.value() + std::string(300, 'n');
  text.set_value(Below(random, 4) == 0 ? longer.c_str() : Choose(random, kValues));
}

void Mutate(const pugi::xml_node& root, Random& random) {
  const std::vector<pugi::xml_node> elements = ElementsUnder(root);
  pugi::xml_node element = elements[Below(random, elements.size())];
  const pugi::xml_node other = elements[Below(random, elements.size())];
  pugi::xml_node parent = element.parent();
  const bool isLeaf = !element.first_child().first_child();
  const std::size_t kind = Below(random, 10);
  if (kind == 0 && element != root) parent.remove_child(element);
  if (kind == 1 && element != root) parent.insert_copy_after(element, element);
  if (kind == 2 && element != root) parent.prepend_copy(other);
  if (kind == 3) element.set_name(Choose(random, kNames));
  if (kind == 4) element.prepend_child(pugi::node_pi).set_name(Choose(random, kNames));
  if (kind > 4 && kind < 7 && isLeaf) MutateText(element, random);
  if (kind > 6) MutateAttribute(element, random);
}

}  // namespace

std::string Mutated(const std::string& document, Random& random) {
  pugi::xml_document tree;
  tree.load_string(document.c_str());
  const std::size_t count = 1 + Below(random, 3);
  for (std::size_t i = 0; i < count; ++i) Mutate(tree.document_element(), random);
  std::ostringstream text;
  tree.save(text, "", pugi::format_raw);
  return text.str();
}

std::string Garbled(const std::string& document, Random& random) {
  std::string text = document;
  for (std::size_t left = 1 + Below(random, 3); left > 0; --left) {
    const std::size_t at = Below(random, text.size());
    const std::size_t kind = Below(random, 3);
    if (kind == 0) text.insert(at, Choose(random, kMarks));
    if (kind == 1) text.erase(at, Below(random, 20));
    if (kind == 2) text[at] = static_cast<char>(random());
  }
  return text;
}
