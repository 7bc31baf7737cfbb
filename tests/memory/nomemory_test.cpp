// Each allocation of each operation fails once, alone or with all behind it. The operation then
// gives its failure result, throws nothing, leaks nothing, and what it was given and what stands in
// its file is as it was before or as it shall be, never anything between.

#include <gtest/gtest.h>

#include <functional>
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
    for (const char* name : {"dyesub6.qdf", "dyesub6.txt", "plot36.qdf"}) {
      folder_.Write(std::string("OutputDrivers/") + name,
                    ReadFile(QDF_EXAMPLES "/OutputDrivers/" + std::string(name)));
    }
    Example();  // what is allocated once, at the first use, is there
  }

  const TempFolder& Folder() const { return folder_; }
  std::string Path(const std::string& name) const { return folder_.Path("OutputDrivers/" + name); }
  std::unique_ptr<APMQDF> Example() const { return LoadFile(Path("dyesub6.qdf")); }

 private:
  TempFolder folder_;
  WorkingFolder in_{folder_.Path()};
};

TEST_F(NoMemory, LoadsGiveNothing) {
  AFilePath path(Path("dyesub6.qdf").c_str());
  WithEveryAllocation("load by name", [&](Attempt& attempt) {
    APMQDF* document = nullptr;
    attempt.Try([&] { PMGetQDFInterfaceFromName("plot36.qdf", &document); });
    EXPECT_EQ(document == nullptr, attempt.Refused());
    delete document;
  });
  WithEveryAllocation("load into an object", [&](Attempt& attempt) {
    APMQDF document;
    EXPECT_TRUE(attempt.FailsWhenRefused([&] { return document.LoadQDFFile(path); }));
  });
  std::vector<std::string> ids;
  for (int id = 1; id <= 100; ++id) ids.push_back(std::to_string(id));
  const DocumentText manyMedia{.MediaList = Entries(Join(ids, ";")),
                               .Control = Control("[1[" + Join(ids, "[1[1[1]]];") + "[1[1[1]]]]]")};
  AFilePath manyPath(Folder().Write("many.qdf", manyMedia.Text()).c_str());
  WithEveryAllocation("load of a node with an index", [&](Attempt& attempt) {
    APMQDF document;
    EXPECT_TRUE(attempt.FailsWhenRefused([&] { return document.LoadQDFFile(manyPath); }));
    std::vector<PrintModeInfo> modes;
    int at = 0;
    const int found = document.GetPrintModeList(1, 99, modes, at);
    EXPECT_TRUE(attempt.Refused() || found == 1);
  });
  WithEveryAllocation("load of a tree", [&](Attempt& attempt) {
    AXMLTree tree("RootElement");
    EXPECT_TRUE(attempt.FailsWhenRefused([&] { return tree.loadFromFile(path, 1); }));
    AXMLTreeNode root;
    EXPECT_EQ(tree.getRootNode(root) == 0, attempt.Refused());
    EXPECT_EQ(tree.loadFault().Reason, attempt.Refused() ? "out of memory" : "");
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
    const int result = attempt.Try([&] { return (document.*ask)(ids..., records, preselected); });
    EXPECT_EQ(result == 0, attempt.Refused());
    EXPECT_TRUE(!attempt.Refused() || preselected == Default());
    EXPECT_EQ(records.size(), attempt.Refused() ? 1 : 1 + all.size());
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
    EXPECT_TRUE(attempt.FailsWhenRefused(ask));
    dithers.clear();
    EXPECT_EQ(ask(), 1);
    EXPECT_EQ(Dump(dithers), "Adaptive");
    EXPECT_EQ(Dump(DocumentMembers(*document).ControlTreeRoot), tree);
  });
}

TEST_F(NoMemory, TextsStayEmptyAndTreesWhole) {
  const std::string longText(100, 'x');
  const auto document =
      Load({.MediaSourceList = Entries("1;2"),
            .MediaSizeList = Entries("1"),
            .Definition = "<ProductType>" + longText + "</ProductType>",
            .Control = Control("[1[1[1[1[1]]]]]",
                               "<PrinterSpecificSetting>" + longText + "</PrinterSpecificSetting>"),
            .SourceControl = SourceControl(">1[1,2[1];2[1]]")});
  AString oemInfo;
  document->GetOEMInfo(1, 1, 1, 1, 1, oemInfo);  // the first question has the dithers read
  WithEveryAllocation("product type", [&](Attempt& attempt) {
    AString text;
    attempt.Try([&] { text = document->GetProdcutType(); });
    EXPECT_EQ(text.GetLength() == 0, attempt.Refused());
  });
  WithEveryAllocation("printer specific text", [&](Attempt& attempt) {
    AString text;
    EXPECT_TRUE(
        attempt.FailsWhenRefused([&] { return document->GetOEMInfo(1, 1, 1, 1, 1, text); }));
    EXPECT_EQ(text.GetLength() == 0, attempt.Refused());
  });
  WithEveryAllocation("copy of a tree", [&](Attempt& attempt) {
    CQDFNode target;
    for (const unsigned int id : {7U, 8U, 9U, 10U}) target.IDs.Add(id);
    for (int i = 0; i < 3; ++i) AddChildNode(target);
    const std::string former = Dump(target);
    CQDFNode* source = ChildAt(*document->GetMediaSourceTreeRoot(), 0);
    const auto copy = [&] { return document->PMCopyMediaSourceTreeRoot(source, &target); };
    EXPECT_TRUE(attempt.FailsWhenRefused([&] { return copy() ? 1 : 0; }));
    EXPECT_EQ(Dump(target) == former, attempt.Refused());
  });
}

// The name is larger than what a tree allocates at once, so it is an allocation of its own.
TEST_F(NoMemory, WritesGiveTheFormerFileOrTheNewOne) {
  const DocumentText text{
      .Control = Control("[1[1[1[1[1]]]]]", "<ICCProfile>" + std::string(50'000, 'x') +
                                                "</ICCProfile><DitherList><Dither Name='d' "
                                                "RipResolution='1'/></DitherList>")};
  AFilePath path(Path("written.qdf").c_str());
  Load(text)->PMWriteQDF(path);
  const std::string whole = ReadFile(Path("written.qdf"));
  WithEveryAllocation("write", [&](Attempt& attempt) {
    const auto document = Load(text);
    WriteFile(Path("written.qdf"), "former");
    attempt.Try([&] { document->PMWriteQDF(path); });
    EXPECT_EQ(ReadFile(Path("written.qdf")), attempt.Refused() ? "former" : whole);
  });
}

// A table loses no more than the line for which there is no memory.
TEST_F(NoMemory, LocalisesLineByLine) {
  const std::string translation(100, 't');
  Folder().Write("OutputDrivers/t", "One=" + translation + "\nTwo=" + translation);
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
    EXPECT_EQ(first && second, !attempt.Refused());
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
  const struct {
    const char* what;
    std::function<int(Media&)> work;
  } rows[] = {
      {"load again", [](Media& media) { return media.LoadCustomMediaFile(); }},
      {"save", [](Media& media) { return media.SaveCustomMediaFile(); }},
      {"add a profile", [&](Media& media) { return media.AddIccprofile(text); }},
      {"set a name", [&](Media& media) { return media.SetDisplayNameForMedia(medium, text); }},
      {"set a profile", [&](Media& media) { return media.SetIccprofileForMedia(text, text); }},
      {"get a name",
       [&](Media& media) {
         AString name;
         const int result = media.GetDisplayNameForMedia(medium, name);
         return name.GetLength() > 0 ? result : 0;
       }},
      {"get the profiles",
       [&](Media& media) {
         AStringArray profiles;
         const int result = media.GetIccprofileList(profiles);
         return profiles.GetSize() > 0 ? result : 0;
       }},
  };
  AFilePath path(Path("media.txt").c_str());
  for (const auto& row : rows) {
    WithEveryAllocation(row.what, [&](Attempt& attempt) {
      WriteFile(Path("media.txt"), lines);
      {
        Media media(path);
        media.LoadCustomMediaFile();
        EXPECT_TRUE(attempt.FailsWhenRefused([&] { return row.work(media); }));
      }
      // What a set that failed removes is told to be gone.
      const bool mayLack = !attempt.Refused() || std::string(row.what).find("set") == 0;
      EXPECT_TRUE(mayLack || ReadFile(Path("media.txt")) == lines);
    });
  }
}

TEST_F(NoMemory, ArchivesTellThatTheyLackSomething) {
  AFilePath path(Path("archive").c_str());
  ANewColorOpt option;
  SetField(option.Shape, "a shape with a name that is long");
  WithEveryAllocation("write to an archive", [&](Attempt& attempt) {
    WriteFile(Path("archive"), "former");
    const int saved = attempt.Try([&] {
      AArchive archive(path, AArchive::Direction::Writing);
      archive << option;
      return archive.Close();
    });
    EXPECT_EQ(saved == 0, attempt.Refused());
    EXPECT_EQ(ReadFile(Path("archive")) == "former", attempt.Refused());
  });
  WithEveryAllocation("read from an archive", [&](Attempt& attempt) {
    ANewColorOpt read;
    const int whole = attempt.Try([&] {
      AArchive archive(path, AArchive::Direction::Reading);
      archive >> read;
      return archive.Close();
    });
    EXPECT_EQ(whole == 0, attempt.Refused());
    EXPECT_TRUE(attempt.Refused() || read == option);
  });
}

TEST_F(NoMemory, UpdatesWriteAllOrNothing) {
  WriteResource(Folder(), "tree", {});
  const AFilePath path("dyesub6.qdf");
  const AFilePath tree("tree");
  PMUpdateQDF(path, tree);
  const std::string whole = ReadFile("dyesub6.qdf");
  EXPECT_NE(LoadFile("dyesub6.qdf"), nullptr);
  WithEveryAllocation("update", [&](Attempt& attempt) {
    WriteFile("dyesub6.qdf", "former");
    attempt.Try([&] { PMUpdateQDF(path, tree); });
    // A sort does without the memory that it asks for.
    const std::string bytes = ReadFile("dyesub6.qdf");
    EXPECT_TRUE(bytes == whole || (attempt.Refused() && bytes == "former")) << bytes.size();
  });
  AFilePath resources("tree");
  WithEveryAllocation("sweep", [&](Attempt& attempt) {
    Folder().Write("tree/Empty/file", "");
    attempt.Try([&] { PMCheckHPXMLVersion(resources); });
    EXPECT_NE(AFilePath("tree/Glossy/best/Glossy_best.xml").exists(), 0);
    EXPECT_TRUE(attempt.Refused() || AFilePath("tree/Empty").exists() == 0);
  });
}

TEST_F(NoMemory, TextFilesDoNotOpen) {
  AFilePath path(Path("dyesub6.txt").c_str());
  for (const unsigned int mode : {AFile::kRead, AFile::kCreate}) {
    WithEveryAllocation("open", [&](Attempt& attempt) {
      AStdioFile file;
      EXPECT_TRUE(attempt.FailsWhenRefused(
          [&] { return file.Open(path, mode, nullptr, AFile::kAnyFile); }));
    });
  }
}

}  // namespace
