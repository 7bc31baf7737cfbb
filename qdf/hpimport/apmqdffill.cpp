// The two operations that fill an APMQDF from elsewhere than a file: from HP resources, and with
// what only a previous document holds.

#include <memory>

#include "qdf/core/childindexes.h"
#include "qdf/core/guarded.h"
#include "qdf/hpimport/derivecolormodes.h"
#include "qdf/hpimport/derivecontroltree.h"
#include "qdf/hpimport/derivelists.h"
#include "qdf/support/foreach.h"
#include "qdf/support/ownership.h"

namespace {

template <class Record>
void AppendCopies(APtrArray& list, const APtrArray& records) {
  ForEachRecord<Record>(
      records, [&](const Record& record) { AddOwned(list, std::make_unique<Record>(record)); });
}

template <std::size_t N>
void Store(double (&target)[N], const double (&numbers)[N]) {
  for (std::size_t i = 0; i < N; ++i) target[i] = numbers[i];
}

}  // namespace

int APMQDF::LoadHPResourceInfo(APtrArray& resources, APtrArray& oldInks, APtrArray& oldMedia) {
  if (oldInks.GetSize() == 0) return 0;
  return Guarded(0, [&] {
    AppendCopies<InkTypeInfo>(InkList, oldInks);
    ReadDeferredDithers();  // of a document that was loaded before: they have names in the lists
    ControlIndexes.reset();
    const bool complete = DeriveMediaList(resources, MediaList, oldMedia) != 0 &&
                          DerivePrintModeList(resources, PrintModeList) != 0 &&
                          DeriveResolutionList(resources, ResolutionList) != 0 &&
                          DeriveColorModeList(resources, ColorModeList) != 0 &&
                          DeriveControlTree(resources, InkList, MediaList, PrintModeList,
                                            ResolutionList, ColorModeList, &ControlTreeRoot,
                                            ICCProfileList, OEMInfoList, DitherNameList) != 0;
    if (!complete) return 0;
    ControlIndexes = std::make_unique<ChildIndexes>(ControlTreeRoot);
    return 1;
  });
}

int APMQDF::InitiateAPMQDF(const AString& productType, const AString& translationTable,
                           const AString& customMediaFile, double limit1, double limit2,
                           double limit3, double limit4, double margin1, double margin2,
                           double margin3, double margin4, APtrArray& mediaSources,
                           APtrArray& mediaSizes, APtrArray& margins, CQDFNode* mediaSourceRoot) {
  return Guarded(0, [&] {
    ProductType = productType;
    TranslationTable = translationTable;
    CustomMediaFile = customMediaFile;
    Store(MediaSizeLimits, {limit1, limit2, limit3, limit4});
    Store(MinimumMargins, {margin1, margin2, margin3, margin4});
    AppendCopies<MediaSourceInfo>(MediaSourceList, mediaSources);
    AppendCopies<MediaSizeInfo>(MediaSizeList, mediaSizes);
    AppendCopies<MarginInfo>(MarginInfoList, margins);
    const bool copied = mediaSourceRoot == nullptr ||
                        PMCopyMediaSourceTreeRoot(mediaSourceRoot, &MediaSourceTreeRoot);
    return copied ? 1 : 0;
  });
}
