// What a host sees that is linked with the library and includes its public headers.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "qdf/core/apmqdf.h"
#include "qdf/definition/colorarchive.h"
#include "qdf/hpimport/sweep.h"
#include "qdf/hpimport/update.h"
#include "qdf/localise/custommedia.h"
#include "qdf/localise/localise.h"
#include "qdf/query/iccprofile.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tests/hpimport/resources.h"

// The undecorated names of the exported functions.
extern "C" {
void NamedGetInterface() __asm__("PMGetQDFInterface");
void NamedGetInterfaceFromName() __asm__("PMGetQDFInterfaceFromName");
void NamedIccProfileIsInList() __asm__("PMIccProfileIsInList");
void NamedLocalize() __asm__("PMLocalizeQDFByTranslationTable");
void NamedGetCustomMedia() __asm__("PMGetCCustomMediaInfoInterFromName");
void NamedUpdate() __asm__("PMUpdateQDF");
void NamedCheckVersion() __asm__("PMCheckHPXMLVersion");
}

namespace {

constexpr const char* kExamples = QDF_EXAMPLES;

template <class Function>
void* Address(Function* function) {
  return reinterpret_cast<void*>(function);
}

TEST(Host, FindsTheFunctionsByTheirPlainNames) {
  EXPECT_EQ(Address(&NamedGetInterface), Address(&PMGetQDFInterface));
  EXPECT_EQ(Address(&NamedGetInterfaceFromName), Address(&PMGetQDFInterfaceFromName));
  EXPECT_EQ(Address(&NamedIccProfileIsInList), Address(&PMIccProfileIsInList));
  EXPECT_EQ(Address(&NamedLocalize), Address(&PMLocalizeQDFByTranslationTable));
  EXPECT_EQ(Address(&NamedGetCustomMedia), Address(&PMGetCCustomMediaInfoInterFromName));
  EXPECT_EQ(Address(&NamedUpdate), Address(&PMUpdateQDF));
  EXPECT_EQ(Address(&NamedCheckVersion), Address(&PMCheckHPXMLVersion));
}

// The size of a record and the places of these fields in it.
template <class Record, class... Field>
std::string Layout(Field Record::*... fields) {
  const Record record{};
  const auto place = [&](auto field) {
    return std::to_string(reinterpret_cast<const char*>(&(record.*field)) -
                          reinterpret_cast<const char*>(&record));
  };
  return std::to_string(sizeof record) + ":" + ((" " + place(fields)) + ...);
}

TEST(Host, SeesRecordsOfAFixedLayout) {
  using Ink = InkTypeInfo;
  using Source = MediaSourceInfo;
  using Mode = PrintModeInfo;
  using Media = MediaTypeInfo;
  using Resolution = ResolutionInfo;
  using Size = MediaSizeInfo;
  using Margin = MarginInfo;
  using Color = ColorModeInfo;
  using Option = ANewColorOpt;
  using Colorant = ColorantInfo;
  EXPECT_EQ(Layout(&Ink::ID, &Ink::DisplayName, &Ink::InternalName), "516: 0 4 260");
  EXPECT_EQ(Layout(&Source::ID, &Source::DisplayName, &Source::InternalName), "516: 0 4 260");
  EXPECT_EQ(Layout(&Mode::ID, &Mode::DisplayName, &Mode::InternalName, &Mode::UnlocalizedName),
            "772: 0 4 260 516");
  EXPECT_EQ(Layout(&Media::ID, &Media::DisplayName, &Media::InternalName,
                   &Media::IsCustomizableMedia, &Media::UnlocalizedName),
            "776: 0 4 260 516 520");
  EXPECT_EQ(Layout(&Resolution::XResolution, &Resolution::YResolution, &Resolution::ID,
                   &Resolution::DisplayName),
            "280: 0 8 16 20");
  EXPECT_EQ(Layout(&Size::ID, &Size::PCLid, &Size::IsRoll, &Size::DisplayName, &Size::InternalName,
                   &Size::SecondDimension, &Size::FirstDimension),
            "544: 0 4 8 12 268 528 536");
  EXPECT_EQ(Layout(&Margin::ID, &Margin::DisplayName, &Margin::InternalName, &Margin::ThirdMargin,
                   &Margin::FourthMargin, &Margin::FirstMargin, &Margin::SecondMargin),
            "552: 0 4 260 520 528 536 544");
  EXPECT_EQ(Layout(&Color::ID, &Color::DisplayName, &Color::InternalName, &Color::ColorantCount,
                   &Color::Colorants),
            "528: 0 4 260 516 520");
  EXPECT_EQ(Layout(&Option::Shape, &Option::Frequency, &Option::Angle, &Option::Setting4,
                   &Option::Setting5, &Option::Setting6, &Option::Setting0, &Option::Setting7,
                   &Option::Setting8, &Option::Setting9, &Option::Setting10, &Option::CurveValues,
                   &Option::CurveFlags, &Option::Colorant),
            "576: 0 128 132 136 144 152 156 160 164 168 172 176 344 428");
  EXPECT_EQ(Layout(&Colorant::InternalName, &Colorant::DisplayName, &Colorant::IsSpotColor,
                   &Colorant::IsPrint, &Colorant::ColorDepth, &Colorant::ColorantSetting5),
            "144: 0 64 128 132 136 140");
}

TEST(Host, GetsNothingForWhatIsNoDocument) {
  const TempFolder folder;
  folder.Write("OutputDrivers/text.qdf", "no XML");
  folder.Write("OutputDrivers/folder.qdf/file", "");
  const WorkingFolder in(folder.Path());
  for (const char* name : {static_cast<const char*>(nullptr), "", "missing.qdf", "text.qdf",
                           "folder.qdf", "text.qdf/x"}) {
    APMQDF other;
    APMQDF* document = &other;
    PMGetQDFInterfaceFromName(name, &document);
    EXPECT_EQ(document, nullptr) << (name == nullptr ? "null" : name);
  }
}

TEST(Host, GetsSeparateDocumentsByName) {
  const WorkingFolder in(kExamples);
  APMQDF* first = nullptr;
  APMQDF* second = nullptr;
  PMGetQDFInterfaceFromName("plot36.qdf", &first);
  PMGetQDFInterfaceFromName("plot36.qdf", &second);
  const std::unique_ptr<APMQDF> owners[] = {std::unique_ptr<APMQDF>(first),
                                            std::unique_ptr<APMQDF>(second)};
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  AString product = first->GetProdcutType();
  EXPECT_EQ(product, "plot36");
  product += "x";
  EXPECT_EQ(first->GetProdcutType(), "plot36");
}

// A whole job, as a host asks for it; what is expected was read in the document by eye.
TEST(Host, NarrowsAJobAndKeepsTheAnswers) {
  auto document = LoadFile(std::string(kExamples) + "/OutputDrivers/plot36.qdf");
  ASSERT_NE(document, nullptr);
  APMQDF& plot36 = *document;
  int at[5] = {};
  const auto inks = Asked<InkTypeInfo>(plot36, &APMQDF::GetInkTypeList, at[0]);
  const auto media = Asked<MediaTypeInfo>(plot36, &APMQDF::GetMediaTypeList, at[1], 1);
  const auto modes = Asked<PrintModeInfo>(plot36, &APMQDF::GetPrintModeList, at[2], 1, 1);
  const auto resolutions =
      Asked<ResolutionInfo>(plot36, &APMQDF::GetResolutionList, at[3], 1, 1, 2);
  const auto colorModes =
      Asked<ColorModeInfo>(plot36, &APMQDF::GetColorModeList, at[4], 1, 1, 2, 1);
  EXPECT_EQ(Join({IDs(inks), IDs(media), IDs(modes), IDs(resolutions), IDs(colorModes)}, " "),
            "1 2,4,1,3,5 1,2 1 1,2");
  EXPECT_EQ(std::vector<int>(at, at + 5), (std::vector<int>{0, 2, 1, 0, 0}));

  std::vector<AString> profiles;
  std::vector<AString> dithers;
  AString profile;
  AString dither;
  AString text;
  double x = 0;
  double y = 0;
  EXPECT_EQ(plot36.GetProfileList(1, 1, 2, 1, 2, profiles, profile), 1);
  EXPECT_EQ(plot36.GetDitherList(1, 1, 2, 1, 2, dithers, dither), 1);
  EXPECT_EQ(plot36.GetRipResolutionForDither(1, 1, 2, 1, 2, "Floyd", x, y), 1);
  EXPECT_EQ(plot36.GetOEMInfo(1, 1, 2, 1, 2, text), 1);

  document.reset();
  EXPECT_EQ(Str(media.at(2).DisplayName), "Plain");
  EXPECT_EQ(Str(colorModes.at(0).Colorants[3].Colorant.InternalName), "Black");
  EXPECT_EQ(Dump(profiles), "plot36 Plain Standard Gray Scale.icc");
  EXPECT_EQ(profile, profiles.at(0));
  EXPECT_EQ(dithers.size(), 11U);
  EXPECT_EQ(dither, "EvenTone");
  EXPECT_EQ(x + y, 600.0);
  EXPECT_EQ(text, "MediaType=Plain;Quality=Standard;InkType=Gray Scale");
}

TEST(Host, AsksForMediaSourcesSizesAndMargins) {
  const auto document = LoadFile(std::string(kExamples) + "/OutputDrivers/dyesub6.qdf");
  ASSERT_NE(document, nullptr);
  int at = 0;
  const auto sources = Asked<MediaSourceInfo>(*document, &APMQDF::GetMediaSourceList, at);
  const auto sizes = Asked<MediaSizeInfo>(*document, &APMQDF::GetMediaSizeList, at, 1);
  const auto margins = Asked<MarginInfo>(*document, &APMQDF::GetMarginInfoList, at, 1, 7);
  EXPECT_EQ(Join({IDs(sources), IDs(sizes), IDs(margins)}, " "), "1 1,2,3,4,5,6,7,8,9,10 2");
  EXPECT_EQ(sizes.at(4).SecondDimension, 513.12);
  EXPECT_EQ(margins.at(0).ThirdMargin, 9.12);
  double limits[4] = {};
  EXPECT_EQ(document->GetMediaSizeLimits(limits[0], limits[1], limits[2], limits[3]), 1);
  EXPECT_EQ(std::vector<double>(limits, limits + 4),
            (std::vector<double>{261.12, 460.8, 460.8, 599.52}));
  EXPECT_EQ(document->GetTranslationTable(), "dyesub6.txt");
  EXPECT_EQ(document->GetCustomMediaFile(), "dyesub6_custom.txt");
}

TEST(Host, SweepsUpdatesTranslatesAndWrites) {
  const TempFolder folder;
  const WorkingFolder in(folder.Path());
  WriteResource(folder, "tree", {});
  folder.Write("tree/Unsound/file", "");
  folder.Write("OutputDrivers/d.qdf",
               ReadFile(std::string(kExamples) + "/OutputDrivers/dyesub6.qdf"));
  folder.Write("OutputDrivers/dyesub6.txt", "Gloss=Glanz");
  AFilePath tree("tree");
  AFilePath path("OutputDrivers/d.qdf");
  PMCheckHPXMLVersion(tree);
  EXPECT_EQ(AFilePath("tree/Unsound").exists(), 0);
  PMUpdateQDF(path, tree);
  const auto document = LoadFile("OutputDrivers/d.qdf");
  ASSERT_NE(document, nullptr);
  PMLocalizeQDFByTranslationTable(document.get());
  std::vector<MediaTypeInfo> media;
  document->GetFullMediaTypeList(media);
  EXPECT_EQ(Str(media.at(0).DisplayName), "Glanz");
  AFilePath copy("copy.qdf");
  document->PMWriteQDF(copy);
  EXPECT_EQ(ReadFile("copy.qdf"), ReadFile("OutputDrivers/d.qdf"));
}

TEST(Host, KeepsCustomMediaAndColorOptions) {
  const TempFolder folder;
  const WorkingFolder in(folder.Path());
  folder.Write("OutputDrivers/custom.txt", "key_Iccprofile=p");
  CCustomMediaInfoInter* made = nullptr;
  PMGetCCustomMediaInfoInterFromName("custom.txt", &made);
  std::unique_ptr<CCustomMediaInfoInter> media(made);
  ASSERT_NE(media, nullptr);
  EXPECT_EQ(media->SetDisplayNameForMedia("Gloss", "Mine"), 1);
  media.reset();
  EXPECT_EQ(ReadFile("OutputDrivers/custom.txt"),
            "key_Iccprofile=p\nkey_DisplayName_ForMedia=Gloss/Mine\n");

  const AFilePath path("options");
  ANewColorOpt option;
  option.Setting4 = 44;
  AArchive writing(path, AArchive::Direction::Writing);
  writing << option;
  EXPECT_EQ(writing.Close(), 1);
  AArchive reading(path, AArchive::Direction::Reading);
  ANewColorOpt read;
  reading >> read;
  EXPECT_NE(read == option, 0);
  EXPECT_THROW(reading << option, AArchiveException);
}

}  // namespace
