// Any bytes as XML: what passes the examination is no riddle to the parser, loads, and is the same
// after it was saved; what repeats itself is examined as well as what doesn't.

#include <cctype>
#include <pugixml.hpp>
#include <vector>

#include "fuzz/fuzzing.h"
#include "qdf/support/axmltree.h"
#include "qdf/support/xmlwellformed.h"

namespace {

// A line for each element, without recursion, since it may be deep.
std::string Dump(const AXMLTree& tree) {
  std::string text;
  std::vector<AXMLTreeNode> waiting(1);
  tree.getRootNode(waiting[0]);
  while (!waiting.empty()) {
    const AXMLTreeNode node = waiting.back();
    waiting.pop_back();
    text += tree.getName(node) + "=" + tree.getValue(node);
    for (const char* name : {"ID", "Name", "a"}) text += "|" + tree.getAttribute(node, name);
    const int count = tree.getChildCount(node);
    text += "|" + std::to_string(count) + "\n";
    for (int i = 0; i < count; ++i)
      Require(tree.getChild(i, node, waiting.emplace_back()) != 0, "each child is there");
  }
  return text;
}

// Whether the text ends with an end tag that lacks only its ">".
bool EndsInEndTag(std::string_view text) {
  std::string_view rest = text;
  while (!rest.empty() && std::isalnum(static_cast<unsigned char>(rest.back())) != 0)
    rest.remove_suffix(1);
  return rest.size() < text.size() && rest.ends_with("</");
}

// Puts white space into each end tag, no two alike, so that no element with children repeats
// another byte for byte.
std::string WithoutRepetitions(std::string_view text) {
  std::string result;
  unsigned int count = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '>' && EndsInEndTag(text.substr(0, i))) {
      for (unsigned int bits = ++count; bits > 0; bits /= 2) result += " \t"[bits % 2];
    }
    result += text[i];
  }
  return result;
}

// An element that repeats the one before isn't looked at again.
void ExaminesRepetitions(const std::string& text) {
  const XMLFindings findings = ExamineXML(text);
  const XMLFindings plain = ExamineXML(WithoutRepetitions(text));
  const auto dump = [](const XMLFindings& each) {
    return std::string(each.fault != nullptr ? each.fault : "") + (each.splitsText ? " split" : "");
  };
  RequireEqual(dump(plain), dump(findings), "what is found in a text with repetitions");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<char> exact(data, data + size);  // a sanitizer sees what is read behind it
  exact.push_back('\0');
  const std::string_view text(exact.data(), size);
  const XMLFindings findings = ExamineXML(text);
  const std::string once(text);
  ExaminesRepetitions(once);
  std::string lacking = once;  // a byte
  if (!once.empty()) lacking.erase(static_cast<unsigned char>(once[size / 2]) % size, 1);
  ExaminesRepetitions("<r>" + once + once + lacking + "</r>");
  MemoryFile file(text);
  AXMLTree tree("RootElement");
  const bool loaded = tree.loadFromFile(file.Path(), 1) != 0;
  Require(loaded == (findings.fault == nullptr),
          "what is not well-formed is refused, and nothing else");
  Require(loaded || (findings.offset <= size && tree.loadFault().Line > 0), "a fault has a place");
  if (!loaded) return 0;
  pugi::xml_document parsed;
  const auto result =
      parsed.load_buffer(text.data(), size, pugi::parse_default, pugi::encoding_utf8);
  RequireEqual("No error", result.description(), "the parser agrees");
  const std::string former = Dump(tree);
  Require(tree.saveToFile(file.Path()) != 0, "a loaded tree is saved");
  Require(tree.loadFromFile(file.Path(), 1) != 0, "a saved tree loads");
  RequireEqual(former, Dump(tree), "a saved tree is the same");
  return 0;
}
