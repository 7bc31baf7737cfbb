// Which names of a document its translation table changes.

#include "qdf/localise/localise.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "qdf/core/documentmembers.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

// All lists bear the names "One" and "Two".
std::string Named(std::string_view more = {}) { return Entries("1=One/One;2=Two/Two", more); }

DocumentText TestDocument(const std::string& table) {
  const std::string colorants =
      "<ColorantList><Color><DisplayName>Two</DisplayName></Color><Color><DisplayName>One"
      "</DisplayName><InternalName>One</InternalName></Color></ColorantList>";
  DocumentText document;
  document.InkList = document.MediaList = document.PrintModeList = Named();
  document.ResolutionList = Named("<Value>600</Value>");
  document.ColorModeList = Named(colorants);
  document.Definition = "<TranslationTable>" + table + "</TranslationTable>";
  document.MediaSourceList = document.MediaSizeList = document.MarginInfoList = Named();
  return document;
}

template <class Record>
void AddNames(std::vector<std::string>& names, const APtrArray& list) {
  for (const Record& record : Records<Record>(list)) names.push_back(Str(record.DisplayName));
}

// The display names of all lists, and those of the colorants behind them.
std::vector<std::string> DisplayNames(APMQDF& document) {
  const DocumentMembers members(document);
  std::vector<std::string> names;
  AddNames<InkTypeInfo>(names, members.InkList);
  AddNames<MediaTypeInfo>(names, members.MediaList);
  AddNames<PrintModeInfo>(names, members.PrintModeList);
  AddNames<ResolutionInfo>(names, members.ResolutionList);
  AddNames<ColorModeInfo>(names, members.ColorModeList);
  AddNames<MediaSourceInfo>(names, members.MediaSourceList);
  AddNames<MarginInfo>(names, members.MarginInfoList);
  AddNames<MediaSizeInfo>(names, members.MediaSizeList);
  for (const auto& mode : Records<ColorModeInfo>(members.ColorModeList)) {
    for (int i = 0; i < mode.ColorantCount; ++i) {
      names.push_back(Str(mode.Colorants[i].Colorant.DisplayName));
    }
  }
  return names;
}

class Localise : public testing::Test {
 protected:
  std::unique_ptr<APMQDF> Localised(const std::string& table,
                                    const DocumentText& text = TestDocument("table.txt")) {
    folder_.Write("OutputDrivers/table.txt", table);
    std::unique_ptr<APMQDF> document = Load(text);
    Again(*document);
    return document;
  }
  void Again(APMQDF& document) const {
    const WorkingFolder in(folder_.Path());
    PMLocalizeQDFByTranslationTable(&document);
  }

 private:
  TempFolder folder_;
};

TEST_F(Localise, TranslatesTheDisplayNamesOfAllLists) {
  const auto document = Localised("one=un\n*One=/zz:\nOne=eins\n*Two=/One\nei=no name\n");
  std::vector<std::string> expected;
  for (int list = 0; list < 8; ++list) expected.insert(expected.end(), {"eins", "One"});
  for (int mode = 0; mode < 2; ++mode) expected.insert(expected.end(), {"One", "eins"});
  EXPECT_EQ(DisplayNames(*document), expected);
  // All other names stay, and so does the order of media.
  const DocumentMembers members(*document);
  const auto media = Records<MediaTypeInfo>(members.MediaList);
  EXPECT_EQ(IDs(media), "1,2");
  EXPECT_EQ(Str(media[0].InternalName) + Str(media[0].UnlocalizedName), "OneOne");
  EXPECT_EQ(Str(Records<PrintModeInfo>(members.PrintModeList)[0].UnlocalizedName), "One");
  const ColorModeInfo mode = Records<ColorModeInfo>(members.ColorModeList)[0];
  EXPECT_EQ(Str(mode.InternalName) + Str(mode.Colorants[1].Colorant.InternalName), "OneOne");
  // A second call looks up the translations.
  Again(*document);
  std::replace(expected.begin(), expected.end(), std::string("One"), std::string("eins"));
  EXPECT_EQ(DisplayNames(*document), expected);
}

TEST_F(Localise, TakesFieldsThatAreFull) {
  const std::string name(256, 'n');
  DocumentText text = TestDocument("table.txt");
  text.InkList = Entries("1=" + name + "n");
  const auto document = Localised("One=" + std::string(300, 'x') + "\n" + name + "=short", text);
  const std::vector<std::string> names = DisplayNames(*document);
  EXPECT_EQ(names[0], "short");
  EXPECT_EQ(names[1], std::string(256, 'x'));
  EXPECT_EQ(names.back(), std::string(64, 'x'));
}

TEST_F(Localise, ChangesNothingWithoutATable) {
  PMLocalizeQDFByTranslationTable(nullptr);
  for (const char* name : {"", ".", "missing.txt", "table.txt/"}) {
    EXPECT_EQ(DisplayNames(*Localised("One=uno", TestDocument(name))).front(), "One") << name;
  }
  EXPECT_EQ(DisplayNames(*Localised("no line\nthat=c\n")).front(), "One");
}

}  // namespace
