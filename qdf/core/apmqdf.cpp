#include "qdf/core/apmqdf.h"

#include <array>
#include <memory>
#include <utility>

#include "qdf/control/deferreddithers.h"
#include "qdf/control/readers.h"
#include "qdf/core/childindexes.h"
#include "qdf/core/guarded.h"
#include "qdf/definition/readers.h"
#include "qdf/support/axmltree.h"
#include "qdf/support/nothrow.h"
#include "qdf/support/numbers.h"
#include "qdf/support/outputdrivers.h"
#include "qdf/support/ownership.h"

namespace {

void ReadText(AXMLTree* tree, const char* name, AString& text) {
  AXMLTreeNode element;
  if (FindInDefinition(tree, name, element) != 0) text = tree->getValue(element);
}

bool ScanLimits(AXMLTree* tree, const char* name, const std::array<double*, 4>& numbers) {
  AXMLTreeNode element;
  if (FindInDefinition(tree, name, element) == 0) return false;
  ScanDoubles(tree->getValue(element), numbers);
  return true;
}

}  // namespace

APMQDF::APMQDF() = default;

APMQDF::~APMQDF() {
  DeleteItems<ColorModeInfo>(ColorModeList);
  DeleteItems<InkTypeInfo>(InkList);
  DeleteItems<MediaTypeInfo>(MediaList);
  DeleteItems<PrintModeInfo>(PrintModeList);
  DeleteItems<ResolutionInfo>(ResolutionList);
  DeleteItems<MediaSourceInfo>(MediaSourceList);
  DeleteItems<MarginInfo>(MarginInfoList);
  DeleteItems<MediaSizeInfo>(MediaSizeList);
}

int APMQDF::LoadQDFFile(AFilePath& path) {
  return Guarded(0, [&] {
    // The name of the root is only a placeholder: the file's root takes its place.
    auto tree = std::make_unique<AXMLTree>("RootElement");
    if (tree->loadFromFile(path, 1) == 0) return 0;
    AXMLTree* document = tree.get();
    ControlDithers().BeginTree(std::move(tree));
    const int result = ParseFromXMLTree(document);
    ControlDithers().EndTree();
    return result;
  });
}

// Lists first: whoever reads a tree asks them which ids exist.
int APMQDF::ParseFromXMLTree(AXMLTree* tree) {
  return Guarded(0, [&] {
    ReadText(tree, "ProductType", ProductType);
    ReadText(tree, "TranslationTable", TranslationTable);
    ReadText(tree, "CustomMediaFile", CustomMediaFile);
    const bool complete = ReadInkList(tree, InkList) != 0 && ReadMediaList(tree, MediaList) != 0 &&
                          ReadPrintModeList(tree, PrintModeList) != 0 &&
                          ReadResolutionList(tree, ResolutionList) != 0 &&
                          ReadColorModeList(tree, ColorModeList) != 0;
    if (!complete) return 0;
    ReadMediaSizeList(tree, MediaSizeList);
    ReadMarginInfoList(tree, MarginInfoList);
    ReadMediaSourceList(tree, MediaSourceList);
    ControlIndexes.reset();
    DeferredDithers& dithers = ControlDithers();
    dithers.BeginTree(*tree);
    ReadControlDefinition(tree, InkList, MediaList, PrintModeList, ResolutionList, ColorModeList,
                          ControlTreeRoot, ICCProfileList, OEMInfoList, DitherNameList,
                          DitherResolutionList, &dithers);
    ControlIndexes = std::make_unique<ChildIndexes>(ControlTreeRoot);
    if (MediaSourceList.GetSize() > 0) {
      ReadMediaSourceControl(tree, MediaSourceList, MediaSizeList, MarginInfoList,
                             MediaSourceTreeRoot);
    }
    PMGetMediaLimits(tree);
    return 1;
  });
}

DeferredDithers& APMQDF::ControlDithers() {
  if (Dithers == nullptr) {
    Dithers = std::make_unique<DeferredDithers>(DitherNameList, DitherResolutionList);
  }
  return *Dithers;
}

void APMQDF::ReadDithersOf(const CQDFNode& colorMode) {
  if (Dithers != nullptr) Dithers->Read(colorMode);
}

void APMQDF::ReadDeferredDithers() {
  if (Dithers != nullptr) Dithers->ReadAll();
}

int APMQDF::PMGetMediaLimits(AXMLTree* tree) {
  double* limits = MediaSizeLimits;
  double* margins = MinimumMargins;
  const bool hasLimits =
      ScanLimits(tree, "MinAndMaxMediaSize", {&limits[0], &limits[1], &limits[2], &limits[3]});
  // Margins are stored turned: the third and the fourth number of the text come first.
  const bool hasMargins =
      ScanLimits(tree, "MinMarginSize", {&margins[2], &margins[3], &margins[0], &margins[1]});
  return hasLimits || hasMargins ? 1 : 0;
}

AString APMQDF::GetProdcutType() {
  return Guarded(AString(), [&] { return ProductType; });
}

AString APMQDF::GetTranslationTable() {
  return Guarded(AString(), [&] { return TranslationTable; });
}

AString APMQDF::GetCustomMediaFile() {
  return Guarded(AString(), [&] { return CustomMediaFile; });
}

bool APMQDF::PMCopyMediaSourceTreeRoot(CQDFNode* source, CQDFNode* target) {
  if (source == nullptr) return false;
  const int formerIDs = target->IDs.GetSize();
  const int formerChildren = target->Children.GetSize();
  const bool copied = Guarded(false, [&] {
    target->IDs.Append(source->IDs);
    const int count = source->Children.GetSize();
    for (int i = 0; i < count; ++i) {
      CQDFNode* child = ChildAt(*source, i);
      if (child == nullptr) continue;
      if (!PMCopyMediaSourceTreeRoot(child, AddChildNode(*target))) return false;
    }
    return true;
  });
  if (copied) {
    target->Default = source->Default;
    return true;
  }
  for (int i = formerChildren; i < target->Children.GetSize(); ++i) delete ChildAt(*target, i);
  target->Children.SetSize(formerChildren, -1);
  target->IDs.SetSize(formerIDs, -1);
  return false;
}

void PMGetQDFInterface(AFilePath& path, APMQDF** document) {
  *document = nullptr;
  if (path.exists() == 0) return;
  *document = OrOnNoMemory<APMQDF*>(nullptr, [&]() -> APMQDF* {
    auto loaded = std::make_unique<APMQDF>();
    return loaded->LoadQDFFile(path) != 0 ? loaded.release() : nullptr;
  });
}

void PMGetQDFInterfaceFromName(const char* name, APMQDF** document) {
  *document = nullptr;
  if (name == nullptr || *name == '\0') return;
  OrOnNoMemory(0, [&] {
    AFilePath path = InOutputDrivers(name);
    PMGetQDFInterface(path, document);
    return 1;
  });
}
