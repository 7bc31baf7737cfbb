#include "qdf/definition/colorarchive.h"

#include <string_view>

#include "qdf/support/text.h"

namespace {

// The tags, in the order in which they are stored. The numbers of the settings are their tags.
enum OptionTag : unsigned char {
  kSetting0,
  kShape,
  kFrequency,
  kAngle,
  kSetting4,
  kSetting5,
  kSetting6,
  kSetting7,
  kSetting8,
  kSetting9,
  kSetting10,
  kColorant,
  kCurve
};
enum ColorantTag : unsigned char {
  kInternalName,
  kDisplayName,
  kColorDepth,
  kIsSpotColor,
  kIsPrint,
  kColorantSetting5
};

template <std::size_t N>
void WriteField(AArchive& archive, const char (&field)[N]) {
  const std::string_view text = FieldText(field);
  archive.WriteText(text.data(), text.size());
}

template <std::size_t N>
void ReadField(AArchive& archive, char (&field)[N]) {
  AString text;
  archive >> text;
  SetField(field, static_cast<const char*>(text));
}

void WriteColorant(AArchive& archive, const ColorantInfo& colorant) {
  archive.TagStart();
  WriteField(archive.Tag(kInternalName), colorant.InternalName);
  WriteField(archive.Tag(kDisplayName), colorant.DisplayName);
  archive.Tag(kColorDepth) << colorant.ColorDepth;
  archive.Tag(kIsSpotColor) << colorant.IsSpotColor;
  archive.Tag(kIsPrint) << colorant.IsPrint;
  archive.Tag(kColorantSetting5) << colorant.ColorantSetting5;
  archive.TagEnd();
}

void ReadColorant(AArchive& archive, ColorantInfo& colorant) {
  archive.TagStart();
  ReadField(archive.Tag(kInternalName), colorant.InternalName);
  ReadField(archive.Tag(kDisplayName), colorant.DisplayName);
  archive.Tag(kColorDepth) >> colorant.ColorDepth;
  archive.Tag(kIsSpotColor) >> colorant.IsSpotColor;
  archive.Tag(kIsPrint) >> colorant.IsPrint;
  archive.Tag(kColorantSetting5) >> colorant.ColorantSetting5;
  archive.TagEnd();
}

}  // namespace

AArchive& operator<<(AArchive& archive, const ANewColorOpt& option) {
  archive.RequireWriting();
  archive.TagStart();
  archive.Tag(kSetting0) << option.Setting0;
  WriteField(archive.Tag(kShape), option.Shape);
  archive.Tag(kFrequency) << option.Frequency;
  archive.Tag(kAngle) << option.Angle;
  archive.Tag(kSetting4) << option.Setting4;
  archive.Tag(kSetting5) << option.Setting5;
  archive.Tag(kSetting6) << option.Setting6;
  archive.Tag(kSetting7) << option.Setting7;
  archive.Tag(kSetting8) << option.Setting8;
  archive.Tag(kSetting9) << option.Setting9;
  archive.Tag(kSetting10) << option.Setting10;
  WriteColorant(archive.Tag(kColorant), option.Colorant);
  archive.Tag(kCurve);
  for (int i = 0; i < ANewColorOpt::kCurvePoints; ++i) {
    archive << option.CurveValues[i] << option.CurveFlags[i];
  }
  return archive.TagEnd();
}

AArchive& operator>>(AArchive& archive, ANewColorOpt& option) {
  if (archive.IsWriting() != 0) {
    AArchive nothing(AFilePath(), AArchive::Direction::Reading);
    nothing >> option;
    return archive;
  }
  archive.TagStart();
  archive.Tag(kSetting0) >> option.Setting0;
  ReadField(archive.Tag(kShape), option.Shape);
  archive.Tag(kFrequency) >> option.Frequency;
  archive.Tag(kAngle) >> option.Angle;
  archive.Tag(kSetting4) >> option.Setting4;
  archive.Tag(kSetting5) >> option.Setting5;
  archive.Tag(kSetting6) >> option.Setting6;
  archive.Tag(kSetting7) >> option.Setting7;
  archive.Tag(kSetting8) >> option.Setting8;
  archive.Tag(kSetting9) >> option.Setting9;
  archive.Tag(kSetting10) >> option.Setting10;
  ReadColorant(archive.Tag(kColorant), option.Colorant);
  if (archive.GetTag(kCurve) != 0) {
    for (int i = 0; i < ANewColorOpt::kCurvePoints; ++i) {
      archive >> option.CurveValues[i] >> option.CurveFlags[i];
    }
  }
  return archive.TagEnd();
}
