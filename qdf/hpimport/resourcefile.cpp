#include "qdf/hpimport/resourcefile.h"

#include <bit>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "qdf/support/foreach.h"
#include "qdf/support/lackofmeans.h"
#include "qdf/support/numbers.h"
#include "qdf/support/ownership.h"
#include "qdf/support/text.h"

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

bool HasLoaded(const AXMLTree& tree, int loaded) {
  if (loaded == 0 && tree.loadFault().LackedMeans) {
    throw LackOfMeans(View(tree.loadFault().Reason));
  }
  return loaded != 0;
}

AString Text(std::string_view text) { return AString(std::string(text).c_str()); }

std::unique_ptr<HPResourceInfo> MakeRecord(std::string_view media, std::string_view quality,
                                           std::string_view file) {
  auto record = std::make_unique<HPResourceInfo>();
  record->MediaName = Text(media);
  record->QualityName = Text(quality);
  record->FileName = Text(file);
  return record;
}

void AddParsed(AXMLTree& tree, std::unique_ptr<HPResourceInfo> record, APtrArray& records) {
  if (ParseHPResourceFile(&tree, record.get()) == 1) AddOwned(records, std::move(record));
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
  return HasLoaded(tree, tree.loadFromFile(path, 1));
}

void LoadHPResourceFile(AFilePath& path, APtrArray& records, AString mediaName, AString qualityName,
                        AString fileName) {
  auto record = MakeRecord(View(mediaName), View(qualityName), View(fileName));
  AXMLTree tree("RootElement");
  if (path.exists() == 0) {
    ThrowIfWithoutMeans();
    return;
  }
  if (LoadResourceTree(tree, path)) AddParsed(tree, std::move(record), records);
}

AXMLFault LoadHPResourceFile(const Descriptor& folder, APtrArray& records,
                             const ResourceName& name) {
  auto record = MakeRecord(name.media, name.quality, name.file);
  AXMLTree tree("RootElement");
  const int loaded = tree.loadFromFolder(folder, record->FileName);
  if (!HasLoaded(tree, loaded)) return tree.loadFault();
  AddParsed(tree, std::move(record), records);
  return {};
}
