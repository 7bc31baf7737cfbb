// Trees that are made element by element with texts of any bytes but NUL, against a plain model:
// what was put in comes out, and comes out again after the tree was saved and loaded.

#include <deque>
#include <map>
#include <vector>

#include "fuzz/fuzzing.h"
#include "qdf/support/axmltree.h"
#include "qdf/support/text.h"

namespace {

constexpr const char* kNames[] = {"a", "b:c", "_-.9", "\xC3\xA9", "ID"};

struct Model {
  std::string name;
  std::string value;
  AXMLTreeNode node;
  std::map<std::string, std::string> attributes{};
  std::vector<Model*> children{};
};

void Compare(const AXMLTree& tree, const AXMLTreeNode& node, Model& model) {
  const bool layout = !model.children.empty() && Trimmed(model.value).empty();
  RequireEqual(model.name, std::string(tree.getName(node)), "a name");
  RequireEqual(layout ? "" : model.value, std::string(tree.getValue(node)), "a value");
  AString joined;
  RequireEqual(std::string(tree.getValue(node)), tree.valueText(node, joined), "a value in place");
  for (const char* name : kNames) {
    RequireEqual(model.attributes[name], tree.attributeText(node, name), "an attribute");
  }
  const int count = tree.getChildCount(node);
  Require(count == static_cast<int>(model.children.size()), "the number of children");
  for (int i = 0; i < count; ++i) {
    AXMLTreeNode child;
    Require(tree.getChild(i, node, child) != 0, "each child is there");
    Compare(tree, child, *model.children[static_cast<std::size_t>(i)]);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Choices choose(TextOf(data, size));
  AXMLTree tree("root");
  std::deque<Model> models{{"root", "", {}}};
  tree.getRootNode(models[0].node);
  while (!choose.AtEnd() && models.size() < 200) {
    Model& parent = models[choose.Below(static_cast<unsigned int>(models.size()))];
    Model added{choose.OneOf(kNames), choose.Text(20), {}};
    if (choose.Chance(2)) {
      tree.setAttribute(parent.node, added.name.c_str(), added.value.c_str());
      parent.attributes[added.name] = added.value;
      continue;
    }
    const int result =
        tree.addChild(added.node, parent.node, added.name.c_str(), added.value.c_str(), -1);
    Require(result != 0, "a child is added");
    parent.children.push_back(&models.emplace_back(added));
  }
  Compare(tree, models[0].node, models[0]);
  MemoryFile file;
  Require(tree.saveToFile(file.Path()) != 0, "a made tree is saved");
  Require(tree.loadFromFile(file.Path(), 1) != 0, "a saved tree loads");
  AXMLTreeNode root;
  tree.getRootNode(root);
  Compare(tree, root, models[0]);
  return 0;
}
