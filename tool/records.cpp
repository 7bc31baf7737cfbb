#include "tool/records.h"

#include "qdf/support/text.h"
#include "tool/optionfields.h"

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

// The settings and the curve, which a document leaves at their defaults, are for programs only.
Object MakeRow(const ANewColorOpt& option) {
  Object row;
  for (const OptionField& field : kOptionFields) {
    row.Add({field.key, field.isSetting ? nullptr : field.label, field.read(option)});
  }
  AddCurve(option, row);
  return row;
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
