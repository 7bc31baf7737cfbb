// The cascade from ink to colour mode, and the whole lists beside it.

#include "qdf/core/guarded.h"
#include "qdf/query/recordlists.h"
#include "qdf/query/treewalk.h"

const CQDFNode* APMQDF::FindControlPath(std::initializer_list<int> ids) {
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
  defaultPosition = 0;
  return Guarded(
      0, [&] { return AppendOptions(FindControlPath({ink}), MediaList, media, defaultPosition); });
}

int APMQDF::GetPrintModeList(const int& ink, const int& media,
                             std::vector<PrintModeInfo>& printModes, int& defaultPosition) {
  defaultPosition = 0;
  return Guarded(0, [&] {
    return AppendOptions(FindControlPath({ink, media}), PrintModeList, printModes, defaultPosition);
  });
}

int APMQDF::GetResolutionList(const int& ink, const int& media, const int& printMode,
                              std::vector<ResolutionInfo>& resolutions, int& defaultPosition) {
  defaultPosition = 0;
  return Guarded(0, [&] {
    return AppendOptions(FindControlPath({ink, media, printMode}), ResolutionList, resolutions,
                         defaultPosition);
  });
}

int APMQDF::GetColorModeList(const int& ink, const int& media, const int& printMode,
                             const int& resolution, std::vector<ColorModeInfo>& colorModes,
                             int& defaultPosition) {
  defaultPosition = 0;
  return Guarded(0, [&] {
    return AppendOptions(FindControlPath({ink, media, printMode, resolution}), ColorModeList,
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
