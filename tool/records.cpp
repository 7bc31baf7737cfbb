#include "tool/records.h"

#include <charconv>

#include "qdf/support/text.h"

namespace {

template <class Record>
Object IDAndNames(const Record& record) {
  return {{"id", "ID", record.ID},
          {"displayName", "Display name", FieldText(record.DisplayName)},
          {"internalName", "Internal name", FieldText(record.InternalName)}};
}

Object With(Object row, std::initializer_list<Field> more) {
  for (const Field& field : more) row.Add(field);
  return row;
}

// The number that the float's shortest decimal form names: 0.1 rather than 0.10000000149.
double Decimal(float number) {
  char digits[32];
  const char* end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  double decimal = 0;
  std::from_chars(digits, end, decimal);
  return decimal;
}

template <class Number, std::size_t N>
List Numbers(const Number (&numbers)[N]) {
  return List(std::begin(numbers), std::end(numbers));
}

double Unsigned(unsigned int number) { return number; }

// The settings and the curve, which a document leaves at their defaults, are for programs only.
Object MakeRow(const ANewColorOpt& option) {
  const ColorantInfo& colorant = option.Colorant;
  return {{"displayName", "Colorant", FieldText(colorant.DisplayName)},
          {"internalName", "Internal", FieldText(colorant.InternalName)},
          {"colorDepth", "Depth", colorant.ColorDepth},
          {"isSpotColor", "Spot", colorant.IsSpotColor},
          {"isPrint", "Print", colorant.IsPrint},
          {"shape", "Shape", FieldText(option.Shape)},
          {"frequency", "Frequency", Decimal(option.Frequency)},
          {"angle", "Angle", Decimal(option.Angle)},
          {"setting0", nullptr, option.Setting0},
          {"setting4", nullptr, option.Setting4},
          {"setting5", nullptr, option.Setting5},
          {"setting6", nullptr, option.Setting6},
          {"setting7", nullptr, option.Setting7},
          {"setting8", nullptr, option.Setting8},
          {"setting9", nullptr, Unsigned(option.Setting9)},
          {"setting10", nullptr, Unsigned(option.Setting10)},
          {"colorantSetting5", nullptr, Unsigned(colorant.ColorantSetting5)},
          {"curveValues", nullptr, Numbers(option.CurveValues)},
          {"curveFlags", nullptr, Numbers(option.CurveFlags)}};
}

}  // namespace

Object MakeRow(const InkTypeInfo& ink) { return IDAndNames(ink); }

Object MakeRow(const MediaTypeInfo& media) {
  return With(IDAndNames(media),
              {{"isCustomizableMedia", "Customizable", media.IsCustomizableMedia},
               {"unlocalizedName", "Unlocalized name", FieldText(media.UnlocalizedName)}});
}

Object MakeRow(const PrintModeInfo& printMode) {
  return With(IDAndNames(printMode),
              {{"unlocalizedName", "Unlocalized name", FieldText(printMode.UnlocalizedName)}});
}

Object MakeRow(const ResolutionInfo& resolution) {
  return {{"id", "ID", resolution.ID},
          {"displayName", "Display name", FieldText(resolution.DisplayName)},
          {"xResolution", "X", resolution.XResolution},
          {"yResolution", "Y", resolution.YResolution}};
}

Object MakeRow(const ColorModeInfo& colorMode) {
  List colorants;
  for (int i = 0; i < colorMode.ColorantCount; ++i) {
    colorants.emplace_back(MakeRow(colorMode.Colorants[i]));
  }
  return With(IDAndNames(colorMode), {{"colorants", "Colorants", std::move(colorants)}});
}

Object MakeRow(const MediaSourceInfo& mediaSource) { return IDAndNames(mediaSource); }

Object MakeRow(const MediaSizeInfo& mediaSize) {
  return With(IDAndNames(mediaSize), {{"pclId", "PCL id", mediaSize.PCLid},
                                      {"isRoll", "Roll", mediaSize.IsRoll},
                                      {"firstDimension", "First", mediaSize.FirstDimension},
                                      {"secondDimension", "Second", mediaSize.SecondDimension}});
}

Object MakeRow(const MarginInfo& margin) {
  return With(IDAndNames(margin), {{"firstMargin", "First", margin.FirstMargin},
                                   {"secondMargin", "Second", margin.SecondMargin},
                                   {"thirdMargin", "Third", margin.ThirdMargin},
                                   {"fourthMargin", "Fourth", margin.FourthMargin}});
}
