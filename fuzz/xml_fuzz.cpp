// Any bytes as XML: what passes the examination is no riddle to the parser, loads, and is the same
// after it was saved.

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

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<char> exact(data, data + size);  // a sanitizer sees what is read behind it
  exact.push_back('\0');
  const std::string_view text(exact.data(), size);
  const XMLFindings findings = ExamineXML(text);
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
