#pragma once

// ANewColorOpt is a colorant as a colour mode uses it: identity, screen, a curve of 21 points, and
// settings that the library keeps for the host without looking at them. Two records can be compared
// for whether a job that is rasterised already still suits the new one.
//
// The character fields hold a terminating zero only when their text is shorter than the field.

#include "qdf/support/export.h"

struct ColorantInfo {
  char InternalName[64] = {};
  char DisplayName[64] = {};
  int IsSpotColor = 0;
  int IsPrint = 1;
  int ColorDepth = 1;  // bits per pixel
  unsigned int ColorantSetting5 = 0;
};

class APMQDF_EXPORT ANewColorOpt {
 public:
  static constexpr int kCurvePoints = 21;

  // Every field gets the default that stands beside it below; the curve becomes a straight line.
  ANewColorOpt();
  ~ANewColorOpt();

  // A record is constructed first and assigned afterwards; nothing copy-constructs one.
  ANewColorOpt(const ANewColorOpt&) = delete;
  const ANewColorOpt& operator=(const ANewColorOpt& other);

  // 1 when what was rasterised with `other` doesn't suit this record, so that the job must be
  // rasterised anew; else 0. Setting9, CurveFlags and IsPrint play no part. A curve point that
  // differs by 0.0000001 or more counts.
  int ColorOptionRequireReRip(const ANewColorOpt& other) const;

  // 1 when the records differ, else 0. CurveFlags plays no part. A curve point counts as different
  // when it is more than 0.0000001 away.
  int operator!=(const ANewColorOpt& other) const;
  int operator==(const ANewColorOpt& other) const;

  char Shape[128] = "Diamond";  // the screen's dot shape
  float Frequency = 55.0F;
  float Angle = 45.0F;
  int Setting4 = 0;
  double Setting5 = 0.0;  // a loaded document puts the angle here as well
  int Setting6 = 0;
  int Setting0 = 4;
  int Setting7 = 0;
  int Setting8 = -1;
  unsigned int Setting9 = 1;
  unsigned int Setting10 = 100;
  double CurveValues[kCurvePoints];  // 0.0, 0.05, ... 1.0
  int CurveFlags[kCurvePoints];      // 1 at both ends, 0 between
  ColorantInfo Colorant;
};
