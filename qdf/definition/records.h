#pragma once

// The records that a document's Definition section is made of. Hosts get copies of them and are
// compiled against their layout: no field may move, grow or shrink.
//
// A name that fills its field of 256 characters has no terminating zero, so never read a name
// without a bound. Names are 8-bit texts that passed through unchanged. An id is unique within its
// list. The numbers carry no unit, and the library never converts them.

#include "qdf/definition/anewcoloropt.h"
#include "qdf/support/export.h"

struct InkTypeInfo {
  int ID;
  char DisplayName[256];  // for people; a translation table may replace it
  char InternalName[256];
};

struct MediaTypeInfo {
  int ID;
  char DisplayName[256];
  char InternalName[256];
  int IsCustomizableMedia;    // non-zero: keeps its place when the list is sorted
  char UnlocalizedName[256];  // the DisplayName as it was read; the list is sorted by it
};

struct PrintModeInfo {
  int ID;
  char DisplayName[256];
  char InternalName[256];
  char UnlocalizedName[256];
};

struct ResolutionInfo {
  double XResolution;
  double YResolution;
  int ID;
  char DisplayName[256];
};

struct MediaSourceInfo {
  int ID;
  char DisplayName[256];
  char InternalName[256];
};

// First and second count the numbers of the document's text; neither means width or length.
struct MediaSizeInfo {
  int ID;
  int PCLid;
  int IsRoll;
  char DisplayName[256];
  char InternalName[256];
  double SecondDimension;
  double FirstDimension;
};

struct MarginInfo {
  int ID;
  char DisplayName[256];
  char InternalName[256];
  double ThirdMargin;
  double FourthMargin;
  double FirstMargin;
  double SecondMargin;
};

// A way of printing and its colorants. Copies are deep: each record owns its own array.
class APMQDF_EXPORT ColorModeInfo {
 public:
  ColorModeInfo() = default;
  ColorModeInfo(const ColorModeInfo& other);
  ColorModeInfo& operator=(const ColorModeInfo& other);
  ~ColorModeInfo();

  int ID = 0;
  char DisplayName[256] = {};
  char InternalName[256] = {};
  int ColorantCount = 0;
  ANewColorOpt* Colorants = nullptr;  // made with new[]; null exactly when the count is below 1
};
