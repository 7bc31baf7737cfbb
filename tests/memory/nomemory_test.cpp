// Each allocation of each operation fails once, alone or with all behind it. The operation then
// gives its failure result, throws nothing, leaks nothing, and what it was given and what stands in
// its file is as it was before or as it shall be, never anything between.

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <typeinfo>

#include "qdf/core/documentmembers.h"
#include "qdf/definition/colorarchive.h"
#include "qdf/hpimport/sweep.h"
#include "qdf/hpimport/sweepverdict.h"
#include "qdf/hpimport/update.h"
#include "qdf/localise/custommedia.h"
#include "qdf/localise/localise.h"
#include "qdf/support/afile.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tests/hpimport/resources.h"
#include "tests/memory/attempt.h"

namespace {

class NoMemory : public testing::Test {
 protected:
  NoMemory() {
    for (const std::string name : {"dyesub6.qdf", "dyesub6.txt", "plot36.qdf"}) {
      folder_.Write("OutputDrivers/" + name, ReadFile(QDF_EXAMPLES "/OutputDrivers/" + name));
    }
    Example();  // what is allocated once, at the first use, is there
  }

  static std::unique_ptr<APMQDF> Example() { return LoadFile("OutputDrivers/dyesub6.qdf"); }

  TempFolder folder_;
  WorkingFolder in_{folder_.Path()};
};

TEST_F(NoMemory, LoadsGiveNothing) {
  WithEveryAllocation("load by name", [&](Attempt& attempt) {
    APMQDF* document = nullptr;
    attempt.Try([&] { PMGetQDFInterfaceFromName("plot36.qdf", &document); });
    EXPECT_EQ(document == nullptr, attempt.refused);
    delete document;
  });
  std::string media = "1";
  std::string nodes = "1[1[1[1]]]";
  for (int id = 2; id <= 100; ++id) {
    media += ';' + std::to_string(id);
    nodes += ';' + std::to_string(id) + "[1[1[1]]]";
  }
  const DocumentText many{.MediaList = Entries(media), .Control = Control("[1[" + nodes + "]]")};
  AFilePath path(folder_.Write("many.qdf", many.Text()).c_str());
  WithEveryAllocation("load of a node with an index", [&](Attempt& attempt) {
    APMQDF document;
    attempt.Expect([&] { return document.LoadQDFFile(path); });
    std::vector<PrintModeInfo> modes;
    int at = 0;
    const int found = document.GetPrintModeList(1, 99, modes, at);
    EXPECT_TRUE(attempt.refused || found == 1);
  });
  WithEveryAllocation("load of a tree", [&](Attempt& attempt) {
    AXMLTree tree("RootElement");
    attempt.Expect([&] { return tree.loadFromFile(path, 1); });
    AXMLTreeNode root;
    EXPECT_EQ(tree.getRootNode(root) == 0, attempt.refused);
    EXPECT_EQ(tree.loadFault().Reason, attempt.refused ? "out of memory" : "");
  });
}

// A question with these ids that is asked with a vector and a default that hold something already.
template <class Record, class Ask, class Default, class... ID>
void CheckQuestion(APMQDF& document, Ask ask, Default former, ID... ids) {
  std::vector<Record> all;
  Default preselected = former;
  ASSERT_NE((document.*ask)(ids..., all, preselected), 0);
  WithEveryAllocation(typeid(Record).name(), [&](Attempt& attempt) {
    std::vector<Record> records(1);
    preselected = former;
    attempt.Expect([&] { return (document.*ask)(ids..., records, preselected); });
    EXPECT_TRUE(!attempt.refused || preselected == Default());
    EXPECT_EQ(records.size(), attempt.refused ? 1 : 1 + all.size());
  });
}

TEST_F(NoMemory, QuestionsLeaveTheVector) {
  using D = APMQDF;
  const auto example = Example();
  D& d = *example;
  CheckQuestion<InkTypeInfo>(d, &D::GetInkTypeList, 7);
  CheckQuestion<MediaTypeInfo>(d, &D::GetMediaTypeList, 7, 1);
  CheckQuestion<PrintModeInfo>(d, &D::GetPrintModeList, 7, 1, 1);
  CheckQuestion<ResolutionInfo>(d, &D::GetResolutionList, 7, 1, 1, 1);
  CheckQuestion<ColorModeInfo>(d, &D::GetColorModeList, 7, 1, 1, 1, 1);
  CheckQuestion<MediaSourceInfo>(d, &D::GetMediaSourceList, 7);
  CheckQuestion<MediaSizeInfo>(d, &D::GetMediaSizeList, 7, 1);
  CheckQuestion<MarginInfo>(d, &D::GetMarginInfoList, 7, 1, 1);
  CheckQuestion<AString>(d, &D::GetProfileList, AString("x"), 1, 1, 1, 1, 1);
  CheckQuestion<AString>(d, &D::GetDitherList, AString("x"), 1, 1, 1, 1, 1);
}

// Dithers that are read late are all there or not at all.
TEST_F(NoMemory, FirstQuestionsLeaveLaterOnesRight) {
  const std::string tree = Dump(DocumentMembers(*Example()).ControlTreeRoot);
  WithEveryAllocation("first question for dithers", [&](Attempt& attempt) {
    const auto document = Example();
    std::vector<AString> dithers;
    AString preselected;
    const auto ask = [&] { return document->GetDitherList(1, 1, 1, 1, 1, dithers, preselected); };
    attempt.Expect(ask);
    dithers.clear();
    EXPECT_EQ(ask(), 1);
    EXPECT_EQ(Dump(dithers), "Adaptive");
    EXPECT_EQ(Dump(DocumentMembers(*document).ControlTreeRoot), tree);
  });
}

TEST_F(NoMemory, TextsStayEmptyAndTreesWhole) {
  const std::string longText(100, 'x');
  const auto document =
      Load({.Definition = "<ProductType>" + longText + "</ProductType>",
            .Control = Control("[1[1[1[1[1]]]]]", "<PrinterSpecificSetting>" + longText +
                                                      "</PrinterSpecificSetting>")});
  const auto askOEMInfo = [&](AString& text) { return document->GetOEMInfo(1, 1, 1, 1, 1, text); };
  AString unused;
  askOEMInfo(unused);  // the first question has the dithers read
  const std::pair<const char*, std::function<int(AString&)>> rows[] = {
      {"product type",
       [&](AString& text) { return (text = document->GetProdcutType()).GetLength(); }},
      {"printer specific text", askOEMInfo}};
  for (const auto& row : rows) {
    WithEveryAllocation(row.first, [&](Attempt& attempt) {
      AString text;
      attempt.Expect([&] { return row.second(text); });
      EXPECT_EQ(text.GetLength() == 0, attempt.refused);
    });
  }
  const auto example = Example();
  CQDFNode* source = ChildAt(*example->GetMediaSourceTreeRoot(), 0);
  WithEveryAllocation("copy of a tree", [&](Attempt& attempt) {
    CQDFNode target;
    for (const unsigned int id : {7U, 8U, 9U, 10U}) target.IDs.Add(id);
    for (int i = 0; i < 3; ++i) AddChildNode(target);
    const std::string former = Dump(target);
    attempt.Expect([&] { return document->PMCopyMediaSourceTreeRoot(source, &target) ? 1 : 0; });
    EXPECT_EQ(Dump(target) == former, attempt.refused);
  });
}

// The name is larger than what a tree allocates at once, so it is an allocation of its own.
TEST_F(NoMemory, WritesGiveTheFormerFileOrTheNewOne) {
  const DocumentText text{
      .Control = Control("[1[1[1[1[1]]]]]", "<ICCProfile>" + std::string(50'000, 'x') +
                                                "</ICCProfile><DitherList><Dither Name='d' "
                                                "RipResolution='1'/></DitherList>")};
  AFilePath path("written.qdf");
  Load(text)->PMWriteQDF(path);
  const std::string whole = ReadFile("written.qdf");
  WithEveryAllocation("write", [&](Attempt& attempt) {
    const auto document = Load(text);
    WriteFile("written.qdf", "former");
    attempt.Try([&] { document->PMWriteQDF(path); });
    EXPECT_EQ(ReadFile("written.qdf"), attempt.refused ? "former" : whole);
  });
}

// A table loses no more than the line for which there is no memory.
TEST_F(NoMemory, LocalisesLineByLine) {
  const std::string translation(100, 't');
  folder_.Write("OutputDrivers/t", "One=" + translation + "\nTwo=" + translation);
  const DocumentText text{.InkList = Entries("1=One;2=Two"),
                          .Definition = "<TranslationTable>t</TranslationTable>"};
  bool met[2][2] = {};
  WithEveryAllocation("localise", [&](Attempt& attempt) {
    const auto document = Load(text);
    attempt.Try([&] { PMLocalizeQDFByTranslationTable(document.get()); });
    const auto inks = Records<InkTypeInfo>(DocumentMembers(*document).InkList);
    const bool first = Str(inks[0].DisplayName) == translation;
    const bool second = Str(inks[1].DisplayName) == translation;
    EXPECT_TRUE(first || Str(inks[0].DisplayName) == "One");
    EXPECT_TRUE(second || Str(inks[1].DisplayName) == "Two");
    EXPECT_EQ(first && second, !attempt.refused);
    met[first][second] = true;
  });
  EXPECT_TRUE(met[false][false] && met[true][false] && met[false][true]);
}

using Media = CCustomMediaInfoInter;

// Each begins with what the file says, and changes it or asks.
TEST_F(NoMemory, CustomMediaKeepTheirFile) {
  const std::string lines =
      "key_Iccprofile=the first of the profiles\nkey_Iccprofile=the second of the profiles\n"
      "key_DisplayName_ForMedia=a medium with a long name/a name that is long as well\n"
      "key_Iccprofile_ForMedia=a medium with a long name/the profile of the medium\n";
  const AString medium("a medium with a long name");
  const AString text("a text that needs memory of its own");
  const std::pair<std::string, std::function<int(Media&)>> rows[] = {
      {"load again", [](Media& media) { return media.LoadCustomMediaFile(); }},
      {"save", [](Media& media) { return media.SaveCustomMediaFile(); }},
      {"add a profile", [&](Media& media) { return media.AddIccprofile(text); }},
      {"set a name", [&](Media& media) { return media.SetDisplayNameForMedia(medium, text); }},
      {"set a profile", [&](Media& media) { return media.SetIccprofileForMedia(text, text); }},
      {"get a name",
       [&](Media& media) {
         AString name;
         return media.GetDisplayNameForMedia(medium, name) != 0 ? name.GetLength() : 0;
       }},
      {"get the profiles",
       [&](Media& media) {
         AStringArray profiles;
         return media.GetIccprofileList(profiles) != 0 ? profiles.GetSize() : 0;
       }},
  };
  AFilePath path("media.txt");
  for (const auto& row : rows) {
    WithEveryAllocation(row.first.c_str(), [&](Attempt& attempt) {
      WriteFile("media.txt", lines);
      std::optional<Media> media(path);
      media->LoadCustomMediaFile();
      attempt.Expect([&] { return row.second(*media); });
      media.reset();
      // What a set that failed removes is told to be gone.
      const bool mayLack = !attempt.refused || row.first.starts_with("set");
      EXPECT_TRUE(mayLack || ReadFile("media.txt") == lines);
    });
  }
}

TEST_F(NoMemory, ArchivesTellThatTheyLackSomething) {
  AFilePath path("archive");
  ANewColorOpt option;
  SetField(option.Shape, "a shape with a name that is long");
  WithEveryAllocation("write to an archive", [&](Attempt& attempt) {
    WriteFile("archive", "former");
    attempt.Expect([&] {
      AArchive archive(path, AArchive::Direction::Writing);
      archive << option;
      return archive.Close();
    });
    EXPECT_EQ(ReadFile("archive") == "former", attempt.refused);
  });
  WithEveryAllocation("read from an archive", [&](Attempt& attempt) {
    ANewColorOpt read;
    attempt.Expect([&] {
      AArchive archive(path, AArchive::Direction::Reading);
      archive >> read;
      return archive.Close();
    });
    EXPECT_TRUE(attempt.refused || read == option);
  });
}

TEST_F(NoMemory, UpdatesWriteAllOrNothing) {
  WriteResource(folder_, "tree", {});
  // So many media that they are indexed.
  for (char name = 'A'; name < 'J'; ++name) {
    WriteResource(folder_, "tree", {.media = std::string(30, name)});
  }
  const AFilePath path("dyesub6.qdf");
  AFilePath tree("tree");
  PMUpdateQDF(path, tree);
  const std::string whole = ReadFile("dyesub6.qdf");
  EXPECT_NE(LoadFile("dyesub6.qdf"), nullptr);
  WithEveryAllocation("update", [&](Attempt& attempt) {
    WriteFile("dyesub6.qdf", "former");
    attempt.Try([&] { PMUpdateQDF(path, tree); });
    // A sort does without the memory that it asks for.
    const std::string bytes = ReadFile("dyesub6.qdf");
    EXPECT_TRUE(bytes == whole || (attempt.refused && bytes == "former")) << bytes.size();
  });
  WithEveryAllocation("sweep", [&](Attempt& attempt) {
    folder_.Write("tree/Empty/file", "");
    attempt.Try([&] { PMCheckHPXMLVersion(tree); });
    EXPECT_NE(AFilePath("tree/Glossy/best/Glossy_best.xml").exists(), 0);
    EXPECT_TRUE(attempt.refused || AFilePath("tree/Empty").exists() == 0);
  });
}

TEST_F(NoMemory, TextFilesDoNotOpen) {
  AFilePath path("OutputDrivers/dyesub6.txt");
  for (const unsigned int mode : {AFile::kRead, AFile::kCreate}) {
    WithEveryAllocation("open", [&](Attempt& attempt) {
      AStdioFile file;
      attempt.Expect([&] { return file.Open(path, mode, nullptr, AFile::kAnyFile); });
    });
  }
}

}  // namespace
