// Reads Control_Definition: five levels of one form, and the leaves under the last.

#include <array>

#include "qdf/control/deferreddithers.h"
#include "qdf/control/ditherlist.h"
#include "qdf/control/levels.h"
#include "qdf/control/nametable.h"
#include "qdf/control/readers.h"
#include "qdf/definition/records.h"
#include "qdf/support/foreach.h"
#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"

namespace {

constexpr std::size_t kLevels = 5;

struct Level {
  const char* element;
  const char* defaultAttribute;  // names the default of the next level
};

constexpr std::array<Level, kLevels> kLevelForms = {{{"Ink", "DefaultMedia"},
                                                     {"Media", "DefaultPrintMode"},
                                                     {"PrintMode", "DefaultResolution"},
                                                     {"Resolution", "DefaultColorMode"},
                                                     {"ColorMode", nullptr}}};

class ControlReader {
 public:
  ControlReader(AXMLTree& tree, const std::array<LevelIDs, kLevels>& ids, AStringArray& profileList,
                AStringArray& oemInfoList, AStringArray& ditherNameList,
                APtrArray& ditherResolutionList, DeferredDithers* deferred)
      : tree_(tree),
        ids_(ids),
        profiles_(profileList, NameCase::Ignored),
        oemInfos_(oemInfoList, NameCase::Ignored),
        dithers_(tree, ditherNameList, ditherResolutionList, nullptr),
        deferredDithers_(deferred) {}

  void ReadLevel(std::size_t level, const AXMLTreeNode& parentElement, CQDFNode& parent) {
    const Level& form = kLevelForms[level];
    ForEachChild(tree_, parentElement, form.element, [&](const AXMLTreeNode& element) {
      ADWordArray ids = ReadIDs(tree_, element, "ID", ids_[level]);
      if (ids.GetSize() == 0) return;
      CQDFNode* node = AddChildNode(parent, ids);
      if (level + 1 == kLevels) {
        ReadColorMode(element, *node);
      } else {
        node->Default = ReadDefault(tree_, element, form.defaultAttribute);
        ReadLevel(level + 1, element, *node);
      }
    });
  }

 private:
  void ReadColorMode(const AXMLTreeNode& element, CQDFNode& node) {
    node.Default = -1;
    ReadPrinterSpecificSetting(element, node);
    ReadProfiles(element, *AddChildNode(node));
    if (deferredDithers_ != nullptr) {
      deferredDithers_->Put(node, element);
    } else {
      dithers_.AddLeaves(node, element);
    }
  }

  void ReadPrinterSpecificSetting(const AXMLTreeNode& element, CQDFNode& node) {
    AXMLTreeNode setting;
    if (tree_.getChild("PrinterSpecificSetting", element, setting) == 0) return;
    AString joined;
    InternDefaultStringIfGiven(&node, Trimmed(tree_.valueText(setting, joined)), oemInfos_);
  }

  // The default need not be among the profiles: it enters the list of names all the same.
  void ReadProfiles(const AXMLTreeNode& element, CQDFNode& profileNode) {
    profileNode.Default = -1;
    InternDefaultStringIfGiven(&profileNode, tree_.attributeText(element, "DefaultICCProfile"),
                               profiles_);
    AString joined;
    UniqueIDs ids(profileNode.IDs);
    ForEachChild(tree_, element, "ICCProfile", [&](const AXMLTreeNode& profile) {
      ids.Add(static_cast<std::uint32_t>(profiles_.Intern(tree_.valueText(profile, joined))));
    });
  }

  AXMLTree& tree_;
  const std::array<LevelIDs, kLevels>& ids_;
  NameTable profiles_;
  NameTable oemInfos_;
  DitherListReader dithers_;
  DeferredDithers* deferredDithers_;
};

}  // namespace

int ReadControlDefinition(AXMLTree* tree, APtrArray& inkList, APtrArray& mediaList,
                          APtrArray& printModeList, APtrArray& resolutionList,
                          APtrArray& colorModeList, CQDFNode& root, AStringArray& profileList,
                          AStringArray& oemInfoList, AStringArray& ditherNameList,
                          APtrArray& ditherResolutionList, DeferredDithers* deferredDithers) {
  if (tree == nullptr) return 0;
  AXMLTreeNode section;
  if (tree->getItem("Control_Definition", section) == 0) return 1;
  const std::array<LevelIDs, kLevels> ids = {
      IDsOf<InkTypeInfo>(inkList), IDsOf<MediaTypeInfo>(mediaList),
      IDsOf<PrintModeInfo>(printModeList), IDsOf<ResolutionInfo>(resolutionList),
      IDsOf<ColorModeInfo>(colorModeList)};
  ControlReader reader(*tree, ids, profileList, oemInfoList, ditherNameList, ditherResolutionList,
                       deferredDithers);
  root.Default = ReadDefault(*tree, section, "DefaultInk");
  reader.ReadLevel(0, section, root);
  return 1;
}
