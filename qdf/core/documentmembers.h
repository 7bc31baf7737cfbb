#pragma once

// The doors to what an APMQDF holds, for the library's own operations outside the class, for the
// tool, which shows the trees, and for the tests. No host includes them.

#include "qdf/core/apmqdf.h"

// Without the control tree.
struct DocumentLists {
  explicit DocumentLists(APMQDF& document)
      : InkList(document.InkList),
        MediaList(document.MediaList),
        PrintModeList(document.PrintModeList),
        ResolutionList(document.ResolutionList),
        ColorModeList(document.ColorModeList),
        MediaSourceList(document.MediaSourceList),
        MarginInfoList(document.MarginInfoList),
        MediaSizeList(document.MediaSizeList),
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
  AString& ProductType;
  AString& TranslationTable;
  AString& CustomMediaFile;
  CQDFNode& MediaSourceTreeRoot;
  bool& LackedMemory;
};

// All of it. Making one reads what of the control tree was put off, which may throw bad_alloc.
struct DocumentMembers : DocumentLists {
  explicit DocumentMembers(APMQDF& document)
      : DocumentLists(document),
        OEMInfoList(document.OEMInfoList),
        ICCProfileList(document.ICCProfileList),
        DitherNameList(document.DitherNameList),
        DitherResolutionList(document.DitherResolutionList),
        ControlTreeRoot(document.ControlTreeRoot) {
    document.ReadDeferredDithers();
  }

  AStringArray& OEMInfoList;
  AStringArray& ICCProfileList;
  AStringArray& DitherNameList;
  APtrArray& DitherResolutionList;
  CQDFNode& ControlTreeRoot;
};
