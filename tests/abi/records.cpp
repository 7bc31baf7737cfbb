// Makes the records known to the description of the interface: the library itself names them only
// as what vectors hold.

#include "qdf/definition/records.h"

#include "qdf/hpimport/hpresource.h"

struct Records {
  InkTypeInfo ink;
  MediaTypeInfo medium;
  PrintModeInfo printMode;
  ResolutionInfo resolution;
  MediaSourceInfo mediaSource;
  MediaSizeInfo mediaSize;
  MarginInfo margin;
  HPResourceInfo resource;
};

extern "C" APMQDF_EXPORT void WatchedRecords(Records* /*records*/) {}
