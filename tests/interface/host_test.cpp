// What a host sees that is linked with the library and includes its public headers.

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "qdf/core/apmqdf.h"
#include "qdf/query/iccprofile.h"
#include "tests/documents.h"
#include "tests/files.h"

// The undecorated names of the exported functions.
extern "C" {
void NamedGetInterface() __asm__("PMGetQDFInterface");
void NamedGetInterfaceFromName() __asm__("PMGetQDFInterfaceFromName");
void NamedIccProfileIsInList() __asm__("PMIccProfileIsInList");
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
}

template <class Record, class Field>
std::size_t Offset(Field Record::*field) {
  static const Record record{};
  return static_cast<std::size_t>(reinterpret_cast<const char*>(&(record.*field)) -
                                  reinterpret_cast<const char*>(&record));
}

TEST(Host, SeesRecordsOfAFixedLayout) {
  using Offsets = std::vector<std::size_t>;
  const auto named = [](auto record) {
    using Record = decltype(record);
    return Offsets{sizeof(Record), Offset(&Record::ID), Offset(&Record::DisplayName),
                   Offset(&Record::InternalName)};
  };
  EXPECT_EQ(named(InkTypeInfo{}), (Offsets{516, 0, 4, 260}));
  EXPECT_EQ(named(MediaSourceInfo{}), (Offsets{516, 0, 4, 260}));
  EXPECT_EQ(named(PrintModeInfo{}), (Offsets{772, 0, 4, 260}));
  EXPECT_EQ(named(MediaTypeInfo{}), (Offsets{776, 0, 4, 260}));
  EXPECT_EQ(named(MediaSizeInfo{}), (Offsets{544, 0, 12, 268}));
  EXPECT_EQ(named(MarginInfo{}), (Offsets{552, 0, 4, 260}));
  EXPECT_EQ(named(ColorModeInfo{}), (Offsets{528, 0, 4, 260}));
  EXPECT_EQ(Offset(&PrintModeInfo::UnlocalizedName), 516U);
  EXPECT_EQ((Offsets{Offset(&MediaTypeInfo::IsCustomizableMedia),
                     Offset(&MediaTypeInfo::UnlocalizedName)}),
            (Offsets{516, 520}));
  EXPECT_EQ((Offsets{sizeof(ResolutionInfo), Offset(&ResolutionInfo::XResolution),
                     Offset(&ResolutionInfo::YResolution), Offset(&ResolutionInfo::ID),
                     Offset(&ResolutionInfo::DisplayName)}),
            (Offsets{280, 0, 8, 16, 20}));
  EXPECT_EQ(
      (Offsets{Offset(&MediaSizeInfo::PCLid), Offset(&MediaSizeInfo::IsRoll),
               Offset(&MediaSizeInfo::SecondDimension), Offset(&MediaSizeInfo::FirstDimension)}),
      (Offsets{4, 8, 528, 536}));
  EXPECT_EQ((Offsets{Offset(&MarginInfo::ThirdMargin), Offset(&MarginInfo::FourthMargin),
                     Offset(&MarginInfo::FirstMargin), Offset(&MarginInfo::SecondMargin)}),
            (Offsets{520, 528, 536, 544}));
  EXPECT_EQ((Offsets{Offset(&ColorModeInfo::ColorantCount), Offset(&ColorModeInfo::Colorants)}),
            (Offsets{516, 520}));
  using Option = ANewColorOpt;
  EXPECT_EQ(
      (Offsets{Offset(&Option::Shape), Offset(&Option::Frequency), Offset(&Option::Angle),
               Offset(&Option::Setting4), Offset(&Option::Setting5), Offset(&Option::Setting6),
               Offset(&Option::Setting0), Offset(&Option::Setting7), Offset(&Option::Setting8),
               Offset(&Option::Setting9), Offset(&Option::Setting10)}),
      (Offsets{0, 128, 132, 136, 144, 152, 156, 160, 164, 168, 172}));
  EXPECT_LT(Offset(&Option::CurveValues), Offset(&Option::CurveFlags));
  EXPECT_LT(Offset(&Option::CurveFlags), Offset(&Option::Colorant));
  EXPECT_EQ((Offsets{sizeof(ColorantInfo), Offset(&ColorantInfo::InternalName),
                     Offset(&ColorantInfo::DisplayName), Offset(&ColorantInfo::IsSpotColor),
                     Offset(&ColorantInfo::IsPrint), Offset(&ColorantInfo::ColorDepth),
                     Offset(&ColorantInfo::ColorantSetting5)}),
            (Offsets{144, 0, 64, 128, 132, 136, 140}));
  EXPECT_TRUE((std::is_same_v<decltype(ColorantInfo::ColorantSetting5), unsigned int>));
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
  std::vector<InkTypeInfo> inks;
  std::vector<MediaTypeInfo> media;
  std::vector<PrintModeInfo> printModes;
  std::vector<ResolutionInfo> resolutions;
  std::vector<ColorModeInfo> colorModes;
  int ink = -1;
  int medium = -1;
  int printMode = -1;
  int resolution = -1;
  int colorMode = -1;
  EXPECT_EQ(plot36.GetInkTypeList(inks, ink), 1);
  EXPECT_EQ(plot36.GetMediaTypeList(1, media, medium), 1);
  EXPECT_EQ(plot36.GetPrintModeList(1, 1, printModes, printMode), 1);
  EXPECT_EQ(plot36.GetResolutionList(1, 1, 2, resolutions, resolution), 1);
  EXPECT_EQ(plot36.GetColorModeList(1, 1, 2, 1, colorModes, colorMode), 1);
  EXPECT_EQ(IDs(inks) + " " + IDs(media) + " " + IDs(printModes) + " " + IDs(resolutions) + " " +
                IDs(colorModes),
            "1 2,4,1,3,5 1,2 1 1,2");
  EXPECT_EQ((std::vector<int>{ink, medium, printMode, resolution, colorMode}),
            (std::vector<int>{0, 2, 1, 0, 0}));

  std::vector<AString> profiles;
  std::vector<AString> dithers;
  AString profile;
  AString dither;
  AString text;
  double x = 0;
  double y = 0;
  EXPECT_EQ(plot36.GetProfileList(1, 1, 2, 1, 2, profiles, profile), 1);
  EXPECT_EQ(Dump(profiles), "plot36 Plain Standard Gray Scale.icc");
  EXPECT_EQ(profile, profiles.at(0));
  EXPECT_EQ(plot36.GetDitherList(1, 1, 2, 1, 2, dithers, dither), 1);
  EXPECT_EQ(dithers.size(), 11U);
  EXPECT_EQ(dither, "EvenTone");
  EXPECT_EQ(plot36.GetRipResolutionForDither(1, 1, 2, 1, 2, "Floyd", x, y), 1);
  EXPECT_EQ(x, 300.0);
  EXPECT_EQ(y, 300.0);
  EXPECT_EQ(plot36.GetOEMInfo(1, 1, 2, 1, 2, text), 1);
  EXPECT_EQ(text, "MediaType=Plain;Quality=Standard;InkType=Gray Scale");

  document.reset();
  EXPECT_EQ(Str(media.at(2).DisplayName), "Plain");
  EXPECT_EQ(Str(colorModes.at(0).Colorants[3].Colorant.InternalName), "Black");
  EXPECT_EQ(Dump(profiles), "plot36 Plain Standard Gray Scale.icc");
}

TEST(Host, AsksForMediaSourcesSizesAndMargins) {
  const auto document = LoadFile(std::string(kExamples) + "/OutputDrivers/dyesub6.qdf");
  ASSERT_NE(document, nullptr);
  std::vector<MediaSourceInfo> sources;
  std::vector<MediaSizeInfo> sizes;
  std::vector<MarginInfo> margins;
  int position = -1;
  EXPECT_EQ(document->GetMediaSourceList(sources, position), 1);
  EXPECT_EQ(document->GetMediaSizeList(1, sizes, position), 1);
  EXPECT_EQ(document->GetMarginInfoList(1, 7, margins, position), 1);
  EXPECT_EQ(IDs(sources) + " " + IDs(sizes) + " " + IDs(margins), "1 1,2,3,4,5,6,7,8,9,10 2");
  EXPECT_EQ(sizes.at(4).SecondDimension, 513.12);
  EXPECT_EQ(margins.at(0).ThirdMargin, 9.12);
  double limits[4] = {};
  EXPECT_EQ(document->GetMediaSizeLimits(limits[0], limits[1], limits[2], limits[3]), 1);
  EXPECT_EQ(std::vector<double>(limits, limits + 4),
            (std::vector<double>{261.12, 460.8, 460.8, 599.52}));
  EXPECT_EQ(document->GetTranslationTable(), "dyesub6.txt");
  EXPECT_EQ(document->GetCustomMediaFile(), "dyesub6_custom.txt");
}

}  // namespace
