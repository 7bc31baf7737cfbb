#include "qdf/hpimport/resourcefile.h"

#include <bit>
#include <memory>
#include <utility>

#include "qdf/support/foreach.h"
#include "qdf/support/numbers.h"
#include "qdf/support/ownership.h"

namespace {

void ReadHalftoning(const AXMLTree& tree, const AXMLTreeNode& element, HPResourceInfo& record) {
  const auto text = [&](const char* name) { return tree.attributeText(element, name); };
  record.Algorithm = ReadInt(text("algorithm"));
  record.InputFormat = text("inputFormat");
  record.InputHRes = ReadDouble(text("inputHRes"));
  record.InputVRes = ReadDouble(text("inputVRes"));
  record.KColorDepth = LevelsToDepth(ReadInt(text("KHiFipeLevels")));
  record.CColorDepth = LevelsToDepth(ReadInt(text("CHiFipeLevels")));
}

void ReadChildren(const AXMLTree& tree, const AXMLTreeNode& root, HPResourceInfo& record) {
  ForEachChild(tree, root, "displayName",
               [&](const AXMLTreeNode& child) { record.DisplayNames.Add(tree.getValue(child)); });
  ForEachChild(tree, root, "fileNames", [&](const AXMLTreeNode& child) {
    AXMLTreeNode profile;
    if (tree.getChild("outputICC", child, profile) != 0) record.OutputICC = tree.getValue(profile);
  });
  ForEachChild(tree, root, "halftoningParms",
               [&](const AXMLTreeNode& child) { ReadHalftoning(tree, child, record); });
}

}  // namespace

int LevelsToDepth(int levels) {
  return levels < 1 ? 0 : static_cast<int>(std::bit_width(static_cast<unsigned int>(levels))) - 1;
}

int ParseHPResourceFile(AXMLTree* tree, HPResourceInfo* record) {
  if (tree == nullptr) return 0;
  AXMLTreeNode root;
  tree->getRootNode(root);
  record->DisplayResolution = tree->attributeText(root, "displayResolution");
  record->PrintQuality = tree->attributeText(root, "printQuality");
  // Each resolution of this quality is a print mode of its own.
  if (record->QualityName.CompareNoCase("superbest") == 0) {
    record->PrintQuality += record->DisplayResolution;
  }
  record->IsCustomizableMedia = ReadInt(tree->attributeText(root, "isCustomizableMedia"));
  ReadChildren(*tree, root, *record);
  return 1;
}

bool LoadResourceTree(AXMLTree& tree, AFilePath& path) {
  const bool loaded = tree.loadFromFile(path, 1) != 0;
  if (!loaded && tree.loadFault().LackedMeans) throw std::bad_alloc();
  return loaded;
}

void LoadHPResourceFile(AFilePath& path, APtrArray& records, AString mediaName, AString qualityName,
                        AString fileName) {
  auto record = std::make_unique<HPResourceInfo>();
  record->MediaName = std::move(mediaName);
  record->QualityName = std::move(qualityName);
  record->FileName = std::move(fileName);
  AXMLTree tree("RootElement");
  if (path.exists() == 0 || !LoadResourceTree(tree, path)) return;
  if (ParseHPResourceFile(&tree, record.get()) == 1) AddOwned(records, std::move(record));
}
