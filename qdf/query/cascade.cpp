// The cascade from ink to colour mode, and the whole lists beside it.

#include "qdf/core/guarded.h"
#include "qdf/query/recordlists.h"
#include "qdf/query/treewalk.h"

namespace {

// One step of the cascade: what may follow the node that the ids led to.
template <class Record>
int AppendNextLevel(const CQDFNode* node, const APtrArray& list, std::vector<Record>& records,
                    int& defaultPosition) {
  defaultPosition = 0;
  if (node == nullptr) return 0;
  return AppendAllowed(list, MergedChildIDs(*node), node->Default, records, defaultPosition);
}

}  // namespace

const CQDFNode* APMQDF::FindControlPath(std::initializer_list<int> ids) {
  if (ControlIndexes == nullptr) ControlIndexes = std::make_unique<ChildIndexes>();
  return FindPath(ControlTreeRoot, ids, ControlIndexes.get());
}

int APMQDF::GetInkTypeList(std::vector<InkTypeInfo>& inks, int& defaultPosition) {
  defaultPosition = 0;
  return Guarded(0, [&] {
    const int result = AppendAll(InkList, inks);
    for (int i = 0; i < InkList.GetSize(); ++i) {
      const int id = static_cast<const InkTypeInfo*>(InkList.GetAt(i))->ID;
      if (id == ControlTreeRoot.Default) defaultPosition = i;
    }
    return result;
  });
}

int APMQDF::GetMediaTypeList(const int& ink, std::vector<MediaTypeInfo>& media,
                             int& defaultPosition) {
  return Guarded(0, [&] {
    return AppendNextLevel(FindControlPath({ink}), MediaList, media, defaultPosition);
  });
}

int APMQDF::GetPrintModeList(const int& ink, const int& media,
                             std::vector<PrintModeInfo>& printModes, int& defaultPosition) {
  return Guarded(0, [&] {
    return AppendNextLevel(FindControlPath({ink, media}), PrintModeList, printModes,
                           defaultPosition);
  });
}

int APMQDF::GetResolutionList(const int& ink, const int& media, const int& printMode,
                              std::vector<ResolutionInfo>& resolutions, int& defaultPosition) {
  return Guarded(0, [&] {
    return AppendNextLevel(FindControlPath({ink, media, printMode}), ResolutionList, resolutions,
                           defaultPosition);
  });
}

int APMQDF::GetColorModeList(const int& ink, const int& media, const int& printMode,
                             const int& resolution, std::vector<ColorModeInfo>& colorModes,
                             int& defaultPosition) {
  return Guarded(0, [&] {
    return AppendNextLevel(FindControlPath({ink, media, printMode, resolution}), ColorModeList,
                           colorModes, defaultPosition);
  });
}

int APMQDF::GetFullInkTypeList(std::vector<InkTypeInfo>& inks) {
  return Guarded(0, [&] { return AppendAll(InkList, inks); });
}

int APMQDF::GetFullMediaTypeList(std::vector<MediaTypeInfo>& media) {
  return Guarded(0, [&] { return AppendAll(MediaList, media); });
}

int APMQDF::GetFullPrintModeList(std::vector<PrintModeInfo>& printModes) {
  return Guarded(0, [&] { return AppendAll(PrintModeList, printModes); });
}

int APMQDF::GetFullResolutionList(std::vector<ResolutionInfo>& resolutions) {
  return Guarded(0, [&] { return AppendAll(ResolutionList, resolutions); });
}

int APMQDF::GetFullColorModeInfoList(std::vector<ColorModeInfo>& colorModes) {
  return Guarded(0, [&] { return AppendAll(ColorModeList, colorModes); });
}

int APMQDF::GetFullMediaSourceInfoList(std::vector<MediaSourceInfo>& mediaSources) {
  return Guarded(0, [&] { return AppendAll(MediaSourceList, mediaSources); });
}
