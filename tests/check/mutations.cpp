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

const char* Choose(Random& random, const std::vector<std::string>& words) {
  return words[random() % words.size()].c_str();
}

// One of those that are there, which may be none.
pugi::xpath_node Choose(Random& random, const pugi::xml_document& document, const char* path) {
  const pugi::xpath_node_set found = document.select_nodes(path);
  return found.empty() ? pugi::xpath_node() : found[random() % found.size()];
}

// One change: an element is removed, repeated, moved or renamed, a text or an attribute set. No
// attribute is added twice, which would be no XML.
void Mutate(const pugi::xml_document& document, Random& random) {
  const char* const name = Choose(random, kAttributes);
  const char* const value = Choose(random, kValues);
  pugi::xml_node element = Choose(random, document, "/*//*").node();
  pugi::xml_node parent = element.parent();
  pugi::xml_text text = Choose(random, document, "//*[not(*)]").node().text();
  const pugi::xpath_node found = Choose(random, document, "//@*");
  pugi::xml_attribute attribute = found.attribute();
  const std::size_t kind = random() % 13;
  if (kind == 0) parent.remove_child(element);
  if (kind == 1) parent.insert_copy_after(element, element);
  if (kind == 2) parent.prepend_copy(Choose(random, document, "//*").node());
  if (kind == 3) Choose(random, document, "//*").node().set_name(Choose(random, kNames));
  if (kind == 4) element.prepend_child(pugi::node_pi).set_name(Choose(random, kNames));
  if (kind == 5) text.set((text.get() + std::string(300, 'n')).c_str());
  if (kind == 6 || kind == 7) text.set(value);
  if (kind == 8 && !element.attribute(name)) element.append_attribute(name) = value;
  if (kind == 9) found.parent().remove_attribute(attribute);
  if (kind == 10 && !found.parent().attribute(name)) attribute.set_name(name);
  if (kind > 10) attribute.set_value(value);
}

}  // namespace

std::string Mutated(const std::string& document, Random& random) {
  pugi::xml_document tree;
  tree.load_string(document.c_str());
  for (std::size_t left = 1 + random() % 3; left > 0; --left) Mutate(tree, random);
  std::ostringstream text;
  tree.save(text, "", pugi::format_raw);
  return text.str();
}

std::string Garbled(const std::string& document, Random& random) {
  std::string text = document;
  for (std::size_t left = 1 + random() % 3; left > 0; --left) {
    const std::size_t at = random() % text.size();
    const std::size_t kind = random() % 3;
    if (kind == 0) text.insert(at, Choose(random, kMarks));
    if (kind == 1) text.erase(at, random() % 20);
    if (kind == 2) text[at] = static_cast<char>(random());
  }
  return text;
}
