#include "qdf/definition/anewcoloropt.h"

#include <cmath>
#include <cstring>

#include "qdf/support/text.h"

namespace {

constexpr double kCurveTolerance = 0.0000001;

// What both comparisons look at, in the record and in its colorant.
bool SameForBoth(const ANewColorOpt& a, const ANewColorOpt& b) {
  return FieldText(a.Shape) == FieldText(b.Shape) && a.Angle == b.Angle &&
         a.Frequency == b.Frequency && a.Setting4 == b.Setting4 && a.Setting5 == b.Setting5 &&
         a.Setting6 == b.Setting6 && a.Setting0 == b.Setting0 && a.Setting7 == b.Setting7 &&
         a.Setting8 == b.Setting8 && a.Setting10 == b.Setting10;
}

bool SameForBoth(const ColorantInfo& a, const ColorantInfo& b) {
  return FieldText(a.InternalName) == FieldText(b.InternalName) &&
         FieldText(a.DisplayName) == FieldText(b.DisplayName) && a.ColorDepth == b.ColorDepth &&
         a.IsSpotColor == b.IsSpotColor && a.ColorantSetting5 == b.ColorantSetting5;
}

template <class SamePoint>
bool SameCurve(const ANewColorOpt& a, const ANewColorOpt& b, SamePoint same) {
  for (int i = 0; i < ANewColorOpt::kCurvePoints; ++i) {
    if (!same(a.CurveValues[i], b.CurveValues[i])) return false;
  }
  return true;
}

}  // namespace

ANewColorOpt::ANewColorOpt() {
  constexpr double kStep = 0.05;
  for (int i = 0; i < kCurvePoints; ++i) {
    CurveValues[i] = i * kStep;
    CurveFlags[i] = i == 0 || i == kCurvePoints - 1 ? 1 : 0;
  }
}

ANewColorOpt::~ANewColorOpt() = default;

const ANewColorOpt& ANewColorOpt::operator=(const ANewColorOpt& other) {
  if (this == &other) return *this;
  std::memcpy(Shape, other.Shape, sizeof Shape);
  Frequency = other.Frequency;
  Angle = other.Angle;
  Setting4 = other.Setting4;
  Setting5 = other.Setting5;
  Setting6 = other.Setting6;
  Setting0 = other.Setting0;
  Setting7 = other.Setting7;
  Setting8 = other.Setting8;
  Setting9 = other.Setting9;
  Setting10 = other.Setting10;
  std::memcpy(CurveValues, other.CurveValues, sizeof CurveValues);
  std::memcpy(CurveFlags, other.CurveFlags, sizeof CurveFlags);
  SetField(Colorant.InternalName, FieldText(other.Colorant.InternalName));
  SetField(Colorant.DisplayName, FieldText(other.Colorant.DisplayName));
  Colorant.IsSpotColor = other.Colorant.IsSpotColor;
  Colorant.IsPrint = other.Colorant.IsPrint;
  Colorant.ColorDepth = other.Colorant.ColorDepth;
  Colorant.ColorantSetting5 = other.Colorant.ColorantSetting5;
  return *this;
}

int ANewColorOpt::ColorOptionRequireReRip(const ANewColorOpt& other) const {
  const auto near = [](double mine, double others) {
    return others - kCurveTolerance < mine && others + kCurveTolerance > mine;
  };
  const bool same = SameForBoth(*this, other) && SameCurve(*this, other, near) &&
                    SameForBoth(Colorant, other.Colorant);
  return same ? 0 : 1;
}

int ANewColorOpt::operator!=(const ANewColorOpt& other) const {
  const auto near = [](double mine, double others) {
    return std::fabs(mine - others) <= kCurveTolerance;
  };
  const bool same = SameForBoth(*this, other) && Setting9 == other.Setting9 &&
                    SameCurve(*this, other, near) && SameForBoth(Colorant, other.Colorant) &&
                    Colorant.IsPrint == other.Colorant.IsPrint;
  return same ? 0 : 1;
}

int ANewColorOpt::operator==(const ANewColorOpt& other) const { return *this != other ? 0 : 1; }
