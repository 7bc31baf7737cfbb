#include "qdf/hpimport/updateddocument.h"

#include <memory>
#include <utility>

#include "qdf/core/documentmembers.h"

namespace {

int TakeOver(APMQDF& document, APMQDF& previous) {
  DocumentLists former(previous);
  double limit[4];
  double margin[4];
  previous.GetMediaSizeLimits(limit[0], limit[1], limit[2], limit[3]);
  previous.GetMinimumMargin(margin[0], margin[1], margin[2], margin[3]);
  return document.InitiateAPMQDF(
      former.ProductType, former.TranslationTable, former.CustomMediaFile, limit[0], limit[1],
      limit[2], limit[3], margin[0], margin[1], margin[2], margin[3], former.MediaSourceList,
      former.MediaSizeList, former.MarginInfoList, previous.GetMediaSourceTreeRoot());
}

// Why a derivation has failed: the first list that it could not fill tells, unless memory ran out.
UpdateFault FaultOf(APMQDF& document) {
  const DocumentLists derived(document);
  if (derived.LackedMemory) return UpdateFault::NoMemory;
  if (derived.InkList.GetSize() == 0) return UpdateFault::NoInk;
  if (derived.MediaList.GetSize() == 0) return UpdateFault::NoMedia;
  if (derived.PrintModeList.GetSize() == 0) return UpdateFault::NoPrintMode;
  return UpdateFault::NoColorMode;
}

UpdateFault Derive(APMQDF& previous, const AFilePath& resourceFolder, UpdatedDocument& updated) {
  auto& resources = *updated.resources;
  if (!CollectHPResources(resourceFolder.GetFullPath(), resources, updated.passedOver)) {
    return UpdateFault::TreeChanged;
  }
  if (resources.GetSize() == 0) {
    return updated.passedOver.empty() ? UpdateFault::NoResource : UpdateFault::NoReadableResource;
  }
  auto document = std::make_unique<APMQDF>();
  if (TakeOver(*document, previous) == 0) return UpdateFault::NoMemory;
  DocumentLists former(previous);
  if (document->LoadHPResourceInfo(resources, former.InkList, former.MediaList) == 0) {
    return FaultOf(*document);
  }
  updated.document = std::move(document);
  return UpdateFault::None;
}

}  // namespace

UpdatedDocument DeriveUpdatedDocument(APMQDF* previous, const AFilePath& resourceFolder) {
  UpdatedDocument updated;
  updated.resources = std::make_unique<OwnedItems<HPResourceInfo>>();
  updated.fault = previous != nullptr ? Derive(*previous, resourceFolder, updated)
                                      : UpdateFault::NoPreviousDocument;
  return updated;
}
