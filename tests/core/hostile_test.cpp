// Documents made to hurt: long lists, deep nesting, huge texts and numbers. Each is loaded and
// asked everything, small and ten times as large, and the time may grow only with the size.

#include <gtest/gtest.h>

#include <ctime>
#include <functional>

#include "tests/documents.h"

namespace {

constexpr int kMany = 50'000;

std::string Repeated(int count, const std::function<std::string(int)>& piece) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece(i);
  return text;
}

std::size_t Size(int count) { return static_cast<std::size_t>(count); }

// Loads the document, asks it every question with one id at all levels, and answers how much came
// back.
std::size_t AnswersOf(const DocumentText& text, const int id) {
  const auto loaded = Load(text);
  EXPECT_NE(loaded, nullptr);
  if (loaded == nullptr) return 0;
  APMQDF& document = *loaded;
  using D = APMQDF;
  int at = 0;
  double x = 0;
  double y = 0;
  std::vector<AString> names;
  AString name;
  document.GetProfileList(id, id, id, id, id, names, name);
  document.GetDitherList(id, id, id, id, id, names, name);
  document.GetOEMInfo(id, id, id, id, id, name);
  document.GetRipResolutionForDither(id, id, id, id, id, "d", x, y);
  return names.size() + Asked<InkTypeInfo>(document, &D::GetInkTypeList, at).size() +
         Asked<MediaTypeInfo>(document, &D::GetMediaTypeList, at, id).size() +
         Asked<PrintModeInfo>(document, &D::GetPrintModeList, at, id, id).size() +
         Asked<ResolutionInfo>(document, &D::GetResolutionList, at, id, id, id).size() +
         Asked<ColorModeInfo>(document, &D::GetColorModeList, at, id, id, id, id).size() +
         Asked<MediaSourceInfo>(document, &D::GetMediaSourceList, at).size() +
         Asked<MediaSizeInfo>(document, &D::GetMediaSizeList, at, id).size() +
         Asked<MarginInfo>(document, &D::GetMarginInfoList, at, id, id).size();
}

// Processor time, and as a ratio, so that neither other work nor the machine counts. What grows
// with the size takes 10 times as long, what grows with its square 100 times.
template <class Work>
void ExpectGrowthWithSize(const Work& work) {
  const std::clock_t start = std::clock();
  work(kMany / 10);
  const std::clock_t small = std::clock();
  work(kMany);
  EXPECT_LT(std::clock() - small, 30 * (small - start));
}

TEST(Hostile, ListsOfManyEntries) {
  ExpectGrowthWithSize([](const int many) {
    const auto entries = [&](const std::string& values, const std::string& alternative) {
      return Repeated(many, [&](int i) {
        return "<a><ID>" + std::to_string(i * 7) + "</ID>" + (i % 2 == 0 ? values : alternative) +
               "</a>";
      });
    };
    const std::string plain = entries("", "");
    const std::string colorants = "<ColorantList><c/></ColorantList>";
    DocumentText text{
        .MediaList = entries("<DisplayName>b</DisplayName>", "<DisplayName>a</DisplayName>"),
        .ColorModeList = entries(colorants, colorants),
        .Control = Control(">7[ALL[-(7)[ALL[ALL[ALL]]]]]"),
        .SourceControl = SourceControl("[ALL[ALL[ALL]]]")};
    text.InkList = text.PrintModeList = text.ResolutionList = plain;
    text.MediaSourceList = text.MediaSizeList = text.MarginInfoList = plain;
    EXPECT_EQ(AnswersOf(text, 14), 8 * Size(many) - 1);
  });
}

// Half of the names differ only in those bits that letters lose with their case, and the numbers of
// resolutions make up for each other: a careless hash is the same for all.
TEST(Hostile, ManyNodesNamesAndAttributes) {
  ExpectGrowthWithSize([](const int many) {
    const auto numbered = [&](const std::string& before, const std::string& after) {
      return Repeated(many, [&](int i) { return before + std::to_string(i) + after; });
    };
    const std::string list = numbered("", ",");
    const std::string profiles = Repeated(many, [](int i) {
      std::string name;
      for (int bit = 0; bit < 17; ++bit) name += (i >> bit & 1) != 0 ? '{' : '[';
      return "<ICCProfile>" + name + "</ICCProfile><ICCProfile>" + name[0] + std::to_string(i) +
             "</ICCProfile>";
    });
    const std::string dithers = Repeated(many, [&](int i) {
      return "<Dither Name='d' RipResolution='" + std::to_string(many - i) + "x" +
             std::to_string(31 * i + 1) + "'/>";
    });
    // Every node but the last has children that lead nowhere.
    const auto nodes = [&](const std::string& child) {
      return Repeated(many, [&](int) { return "1[" + child + "];"; });
    };
    std::string control = Control("[" + nodes("1") + "1[" + nodes("1") + "1[1[1[" + list + "]]]]]");
    control.insert(control.rfind("</ColorMode>"),
                   profiles + "<DitherList>" + dithers +
                       numbered("<Dither RipResolution='600' Name='d", "'/>") + "</DitherList>");
    control.insert(control.find('>'), numbered(" a", "=''"));
    const DocumentText text{.MediaSourceList = Entries("1"),
                            .Control = control,
                            .SourceControl = SourceControl("[" + nodes("1") + list + "]")};
    EXPECT_EQ(AnswersOf(text, 1), 5 + 3 * Size(many));
  });
}

TEST(Hostile, NestingBeyondAnyStack) {
  ExpectGrowthWithSize([](const int many) {
    for (const char* name : {"Ink", "Media", "QDF_Info", "ColorantList", "InkList"}) {
      const std::string open = "<" + std::string(name) + " ID='1'>";
      const std::string close = "</" + std::string(name) + ">";
      const std::string deep = Repeated(4 * many, [&](int) { return open; }) +
                               Repeated(4 * many, [&](int) { return close; });
      AnswersOf({.InkList = Entries("1", deep),
                 .Definition = deep,
                 .Control = "<Control_Definition>" + deep + "</Control_Definition>" + deep},
                1);
    }
    EXPECT_EQ(LoadText(Repeated(many, [](int) { return std::string("<a>"); })), nullptr);
  });
}

TEST(Hostile, TextsOfMegabytes) {
  ExpectGrowthWithSize([](const int many) {
    const std::string longText(40 * Size(many), '7');
    const std::string list = Repeated(10 * many, [&](int) { return std::string("1,("); });
    const std::string control = Control(
        "[" + list + "[" + longText + "[1[1[1]]]]]",
        "<PrinterSpecificSetting>" + longText + "</PrinterSpecificSetting>" + "<ICCProfile>" +
            longText + "</ICCProfile><DitherList><Dither " + "Name='" + longText +
            "' RipResolution='" + longText + "x" + longText + "'/></DitherList>");
    const DocumentText text{.InkList = Entries(longText + "=" + longText) + Entries("1"),
                            .MediaList = Entries("1;2147483647"),
                            .ResolutionList = Resolutions("1=" + longText),
                            .Definition = "<MinMarginSize>" + longText + "</MinMarginSize>",
                            .Control = control};
    EXPECT_EQ(AnswersOf(text, 1), 3U) << "two inks and a medium";
  });
}

}  // namespace
