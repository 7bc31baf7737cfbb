#include "tool/load.h"

#include "qdf/definition/readers.h"
#include "qdf/support/axmltree.h"
#include "qdf/support/outputdrivers.h"
#include "qdf/support/ownership.h"
#include "tool/failure.h"

namespace {

struct MandatoryList {
  const char* name;
  // Why the list has no records although it has entries; null where every list of entries gives
  // records.
  const char* refused;
};

constexpr MandatoryList kMandatoryLists[] = {
    {"InkList", nullptr},
    {"MediaList", nullptr},
    {"PrintModeList", nullptr},
    {"ResolutionList", nullptr},
    {"ColorModeList", "no colour mode of ColorModeList has a colorant"},
};

// Empty when the list gives records.
std::string FaultOf(AXMLTree& tree, const MandatoryList& list) {
  const std::string name = list.name;
  AXMLTreeNode section;
  if (FindInDefinition(&tree, list.name, section) == 0) return "Definition has no " + name;
  if (tree.getChildCount(section) == 0) return name + " is empty";
  if (list.refused == nullptr) return {};
  OwnedItems<ColorModeInfo> colorModes;
  return ReadColorModeList(&tree, colorModes) == 0 ? list.refused : std::string();
}

std::string FaultsOf(AXMLTree& tree) {
  AXMLTreeNode definition;
  if (tree.getItem("Definition", definition) == 0) return "the root element has no Definition";
  std::string faults;
  for (const MandatoryList& list : kMandatoryLists) {
    const std::string fault = FaultOf(tree, list);
    if (!fault.empty()) faults += (faults.empty() ? "" : "; ") + fault;
  }
  return faults.empty() ? "it can't be loaded" : faults;
}

std::string WhyNot(AFilePath& path) {
  const std::string file = static_cast<const char*>(path);
  AXMLTree tree("none");
  if (tree.loadFromFile(path, 1) != 0) return file + ": " + FaultsOf(tree);
  const AXMLFault& fault = tree.loadFault();
  const std::string reason = static_cast<const char*>(fault.Reason);
  return PlaceOf(file, fault) + ": " + reason;
}

}  // namespace

std::string PlaceOf(const std::string& file, const AXMLFault& fault) {
  if (fault.Line == 0) return file;
  return file + ':' + std::to_string(fault.Line) + ':' + std::to_string(fault.Column);
}

std::string DocumentPath(const std::string& name) {
  if (name.empty()) throw Failure(kWrongUsage, "the name of the document is empty");
  if (name.find('/') != std::string::npos) return name;
  const AFilePath path = InOutputDrivers(name.c_str());
  const bool isHere = path.exists() == 0 && AFilePath(name.c_str()).exists() != 0;
  return isHere ? name : static_cast<const char*>(path);
}

Document LoadDocument(const std::string& name) {
  Document document{DocumentPath(name), nullptr};
  AFilePath path(document.path.c_str());
  APMQDF* loaded = nullptr;
  PMGetQDFInterface(path, &loaded);
  if (loaded == nullptr) throw Failure(kNoAnswer, WhyNot(path));
  document.content.reset(loaded);
  return document;
}
