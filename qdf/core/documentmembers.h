#pragma once

// The one door to what an APMQDF holds, for the library's own operations outside the class, for the
// tool, which shows the trees, and for the tests. No host includes it.

#include "qdf/core/apmqdf.h"

struct DocumentMembers {
  explicit DocumentMembers(APMQDF& document)
      : InkList(document.InkList),
        MediaList(document.MediaList),
        PrintModeList(document.PrintModeList),
        ResolutionList(document.ResolutionList),
        ColorModeList(document.ColorModeList),
        MediaSourceList(document.MediaSourceList),
        MarginInfoList(document.MarginInfoList),
        MediaSizeList(document.MediaSizeList),
        OEMInfoList(document.OEMInfoList),
        ICCProfileList(document.ICCProfileList),
        DitherNameList(document.DitherNameList),
        DitherResolutionList(document.DitherResolutionList),
        ControlTreeRoot(document.ControlTreeRoot),
        ProductType(document.ProductType),
        TranslationTable(document.TranslationTable),
        CustomMediaFile(document.CustomMediaFile),
        MediaSourceTreeRoot(document.MediaSourceTreeRoot),
        LackedMemory(document.LackedMemory) {}

  APtrArray& InkList;
  APtrArray& MediaList;
  APtrArray& PrintModeList;
  APtrArray& ResolutionList;
  APtrArray& ColorModeList;
  APtrArray& MediaSourceList;
  APtrArray& MarginInfoList;
  APtrArray& MediaSizeList;
  AStringArray& OEMInfoList;
  AStringArray& ICCProfileList;
  AStringArray& DitherNameList;
  APtrArray& DitherResolutionList;
  CQDFNode& ControlTreeRoot;
  AString& ProductType;
  AString& TranslationTable;
  AString& CustomMediaFile;
  CQDFNode& MediaSourceTreeRoot;
  bool& LackedMemory;
};
