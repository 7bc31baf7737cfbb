// Media sources, their sizes and margins, and the numbers for the whole device.

#include "qdf/core/guarded.h"
#include "qdf/query/recordlists.h"
#include "qdf/query/treewalk.h"

namespace {

int CopyNumbers(const double (&numbers)[4], double& first, double& second, double& third,
                double& fourth) {
  first = numbers[0];
  second = numbers[1];
  third = numbers[2];
  fourth = numbers[3];
  return 1;
}

}  // namespace

int APMQDF::GetFullMarginInfoList(std::vector<MarginInfo>& margins) {
  return Guarded(0, [&] { return AppendAll(MarginInfoList, margins); });
}

int APMQDF::GetFullMediaSizeInfoList(std::vector<MediaSizeInfo>& mediaSizes) {
  return Guarded(0, [&] { return AppendAll(MediaSizeList, mediaSizes); });
}

int APMQDF::GetMediaSourceList(std::vector<MediaSourceInfo>& mediaSources, int& defaultPosition) {
  defaultPosition = 0;
  return Guarded(0, [&] {
    return AppendOptions(&MediaSourceTreeRoot, MediaSourceList, mediaSources, defaultPosition);
  });
}

int APMQDF::GetMediaSizeList(const int& mediaSource, std::vector<MediaSizeInfo>& mediaSizes,
                             int& defaultPosition) {
  defaultPosition = 0;
  return Guarded(0, [&] {
    return AppendOptions(FindChildWithID(MediaSourceTreeRoot, mediaSource), MediaSizeList,
                         mediaSizes, defaultPosition);
  });
}

// No going back here: the first node for the source, and under it the first for the size, decide.
// The margins are those of the size node's first child alone.
int APMQDF::GetMarginInfoList(const int& mediaSource, const int& mediaSize,
                              std::vector<MarginInfo>& margins, int& defaultPosition) {
  defaultPosition = 0;
  const CQDFNode* source = FindChildWithID(MediaSourceTreeRoot, mediaSource);
  const CQDFNode* size = source != nullptr ? FindChildWithID(*source, mediaSize) : nullptr;
  if (size == nullptr || size->Children.GetSize() == 0) return 0;
  const CQDFNode* margin = ChildAt(*size, 0);
  if (margin == nullptr) return 0;
  return Guarded(0, [&] {
    return AppendAllowed(MarginInfoList, margin->IDs, margin->Default, margins, defaultPosition);
  });
}

int APMQDF::GetMediaSizeLimits(double& first, double& second, double& third, double& fourth) {
  return CopyNumbers(MediaSizeLimits, first, second, third, fourth);
}

int APMQDF::GetMinimumMargin(double& first, double& second, double& third, double& fourth) {
  return CopyNumbers(MinimumMargins, first, second, third, fourth);
}

CQDFNode* APMQDF::GetMediaSourceTreeRoot() { return &MediaSourceTreeRoot; }
