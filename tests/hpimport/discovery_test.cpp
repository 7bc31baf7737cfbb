#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <limits>

#include "qdf/hpimport/removefolder.h"
#include "qdf/hpimport/resourcefile.h"
#include "qdf/hpimport/resourcename.h"
#include "qdf/support/directorysearch.h"
#include "tests/hpimport/resources.h"

namespace {

namespace fs = std::filesystem;

TEST(ResourceName, IsMadeOfTheTwoFoldersAboveTheFile) {
  struct Row {
    const char* path;
    const char* name;  // media, quality and file; empty for a path that is no resource
  };
  const Row rows[] = {
      {"/top/Glossy/best/Glossy_best.xml", "Glossy|best|Glossy_best.xml"},
      {"Glossy/best/Glossy_best.xml", "Glossy|best|Glossy_best.xml"},
      {"/top/Glossy/best/gLOSSY_Best.XML", "Glossy|best|gLOSSY_Best.XML"},
      {"/a_b/c/a_b_c.xml", "a_b|c|a_b_c.xml"},
      {"/a//b/a_b.xml", "a|b|a_b.xml"},
      {"/top/Glossy/best/best_Glossy.xml", ""},
      {"/top/Glossy/best/other.xml", ""},
      {"/top/Glossy/best/Glossy_best.xm", ""},
      {"/top/Glossy/best/Glossy_best.xml.bak", ""},
      {"/top/Glossy/best/Glossy-best.xml", ""},
      {"/top/Glossy/best/deeper/Glossy_best.xml", ""},
      {"best/_best.xml", ""},
      {"/best/_best.xml", ""},
      {"Glossy_best.xml", ""},
      {".xml", ""},
      {"", ""},
  };
  for (const Row& row : rows) {
    const auto name = FindResourceName(row.path);
    const std::string found =
        name ? Join({std::string(name->media), std::string(name->quality), std::string(name->file)},
                    "|")
             : "";
    EXPECT_EQ(found, row.name) << row.path;
  }
}

TEST(LevelsToDepth, IsExactForEveryPowerOfTwo) {
  for (int n = 0; n <= 30; ++n) {
    EXPECT_EQ(LevelsToDepth(1 << n), n);
    if (n > 1) {
      EXPECT_EQ(LevelsToDepth((1 << n) - 1), n - 1);
      EXPECT_EQ(LevelsToDepth((1 << n) + 1), n);
    }
  }
  for (const int levels : {0, -1, -8, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(LevelsToDepth(levels), 0);
  }
  EXPECT_EQ(LevelsToDepth(std::numeric_limits<int>::max()), 30);
}

std::string Dump(const HPResourceInfo& record) {
  AString numbers;
  numbers.Format("%d %g %g %d %d %d", record.IsCustomizableMedia, record.InputHRes,
                 record.InputVRes, record.KColorDepth, record.CColorDepth, record.Algorithm);
  const auto text = [](const AString& value) { return static_cast<const char*>(value); };
  return Join({text(record.MediaName), text(record.QualityName), Dump(record.DisplayNames),
               text(record.PrintQuality), text(record.DisplayResolution), text(record.InputFormat),
               text(record.OutputICC), text(numbers), text(record.FileName)},
              "/");
}

std::string Found(const std::string& folder) {
  Resources records;
  PMGetHPRecursive(folder.c_str(), records);
  std::vector<std::string> texts;
  for (int i = 0; i < records.GetSize(); ++i) {
    texts.push_back(Dump(*static_cast<HPResourceInfo*>(records.GetAt(i))));
  }
  return Join(texts, "\n");
}

TEST(ResourceFile, IsReadLeniently) {
  struct Row {
    const char* quality;
    const char* text;
    const char* record;  // null: none
  };
  const Row rows[] = {
      {"q",
       "<r release='2' printQuality='Best' displayResolution='600x300' isCustomizableMedia='2'>"
       "<halftoningParms algorithm='4' inputFormat='KCMY' inputHRes='600.5' inputVRes='300' "
       "KHiFipeLevels='3' CHiFipeLevels='16'/><displayName>A</displayName><other/>"
       "<fileNames><x/><outputICC>a.icc</outputICC></fileNames><displayName> B </displayName>"
       "<displayName>A</displayName></r>",
       "M/q/A| B |A/Best/600x300/KCMY/a.icc/2 600.5 300 1 4 4/M_q.xml"},
      {"q", "<any/>", "M/q//////0 0 0 0 0 0/M_q.xml"},
      {"SuperBest", "<r printQuality='Best' displayResolution='600'/>",
       "M/SuperBest//Best600/600///0 0 0 0 0 0/M_SuperBest.xml"},
      {"superbest2", "<r printQuality='Best' displayResolution='600'/>",
       "M/superbest2//Best/600///0 0 0 0 0 0/M_superbest2.xml"},
      // A later element overwrites, also with what it lacks; but only fileNames with a profile.
      {"q",
       "<r><fileNames><outputICC>a</outputICC></fileNames><fileNames/>"
       "<halftoningParms algorithm='4' inputHRes='1'/><halftoningParms inputVRes='2'/></r>",
       "M/q/////a/0 0 2 0 0 0/M_q.xml"},
      {"q", "<r><DisplayName>A</DisplayName><x><displayName>B</displayName></x></r>",
       "M/q//////0 0 0 0 0 0/M_q.xml"},
      {"q", "<r>", nullptr},
      {"q", "", nullptr},
  };
  for (const Row& row : rows) {
    const TempFolder folder;
    folder.Write(Join({"M/", row.quality, "/M_", row.quality, ".xml"}, ""), row.text);
    EXPECT_EQ(Found(folder.Path()), row.record != nullptr ? row.record : "") << row.text;
  }
  EXPECT_EQ(ParseHPResourceFile(nullptr, nullptr), 0);
}

TEST(ResourceFile, IsLoadedFromAPathUnderTheToldNames) {
  const TempFolder folder;
  const AFilePath whole(WriteResource(folder, "t", {}).c_str());
  const AFilePath broken(folder.Write("broken.xml", "<r>").c_str());
  const AFilePath missing(folder.Path("missing.xml").c_str());
  Resources records;
  for (AFilePath path : {broken, missing, whole}) {
    LoadHPResourceFile(path, records, "media", "quality", "file");
  }
  ASSERT_EQ(records.GetSize(), 1);
  EXPECT_EQ(Dump(*static_cast<HPResourceInfo*>(records.GetAt(0))),
            "media/quality/Gloss/Best/600/KCMY/p.icc/0 600 600 1 2 1/file");
}

TEST(Discovery, FindsResourcesAtAnyDepthInTheOrderOfTheSearch) {
  const TempFolder folder;
  const std::string empty = "<r/>";
  for (const char* file : {"b/Q/b_q.xml", "B/q/B_q.xml", "B/q/b_Q.XML", "B/q/other.xml", "a.xml",
                           "A/x/y/z/y_z.xml", "A/x/A_x.xml", "c/d/d_c.xml", "c/bad/c_bad.xml"}) {
    folder.Write(file, std::string(file).find("bad") == std::string::npos ? empty : "<r");
  }
  const std::string rest = "//////0 0 0 0 0 0/";
  const std::string all =
      Join({"A/x" + rest + "A_x.xml", "y/z" + rest + "y_z.xml", "B/q" + rest + "B_q.xml",
            "B/q" + rest + "b_Q.XML", "b/Q" + rest + "b_q.xml"},
           "\n");
  EXPECT_EQ(Found(folder.Path()), all);
  EXPECT_EQ(Found(folder.Path() + "//"), all);
  {
    const WorkingFolder in(folder.Path());
    EXPECT_EQ(Found("."), all);
    EXPECT_EQ(Found(""), "");
    EXPECT_EQ(Found("A/x"), "A/x" + rest + "A_x.xml\ny/z" + rest + "y_z.xml");
  }
  EXPECT_EQ(Found(folder.Path("missing")), "");
  EXPECT_EQ(Found(folder.Path("a.xml")), "");
}

// The path is longer than the system takes in one piece.
TEST(Discovery, FindsResourcesAtEndlessPaths) {
  const TempFolder folder;
  const std::string resource = WriteResource(folder, "t", {});
  const std::string name(250, 'x');
  Descriptor deep = OpenFolder(folder.Path("t").c_str());
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(mkdirat(deep.Number(), name.c_str(), 0755), 0);
    deep = OpenSubfolder(deep, name.c_str());
  }
  fs::rename(folder.Path("t/Glossy"), folder.Path("Glossy"));
  ASSERT_EQ(renameat(AT_FDCWD, folder.Path("Glossy").c_str(), deep.Number(), "Glossy"), 0);
  EXPECT_EQ(Found(folder.Path()),
            "Glossy/best/Gloss/Best/600/KCMY/p.icc/0 600 600 1 2 1/Glossy_best.xml");
  RemoveFolderTree(folder.Path("t").c_str());
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

// In memory where the machine has such a folder: many disks are slow to make so many files.
TEST(Discovery, FindsTheResourceAmongManyFiles) {
  const fs::path memory = "/dev/shm";
  const TempFolder folder(access(memory.c_str(), W_OK) == 0 ? memory : fs::temp_directory_path());
  const fs::path resource = WriteResource(folder, "t", {});
  const Descriptor best = OpenFolder(resource.parent_path().c_str());
  for (int i = 0; i < 100'000; ++i) {
    const std::string name = "Glossy_best.xml" + std::to_string(i);
    ASSERT_EQ(mknodat(best.Number(), name.c_str(), S_IFREG | 0600, 0), 0);
  }
  EXPECT_EQ(Found(folder.Path()),
            "Glossy/best/Gloss/Best/600/KCMY/p.icc/0 600 600 1 2 1/Glossy_best.xml");
}

TEST(Discovery, AppendsAndNeverReadsThroughALink) {
  const TempFolder outside;
  const std::string foreign = WriteResource(outside, "o", {});
  const TempFolder folder;
  WriteResource(folder, "t", {.media = "Own"});
  fs::create_directories(folder.Path("t/Glossy/best"));
  fs::create_symlink(foreign, folder.Path("t/Glossy/best/Glossy_best.xml"));
  fs::create_directory_symlink(outside.Path("o/Glossy"), folder.Path("t/Linked"));
  fs::create_directory_symlink("..", folder.Path("t/Own/up"));
  Resources records;
  PMGetHPRecursive(folder.Path("t").c_str(), records);
  PMGetHPRecursive(folder.Path("t").c_str(), records);
  ASSERT_EQ(records.GetSize(), 2);
  EXPECT_EQ(static_cast<HPResourceInfo*>(records[1])->MediaName, "Own");
  // The folder itself may be reached through one.
  fs::create_directory_symlink(outside.Path(), folder.Path("link"));
  EXPECT_TRUE(Found(folder.Path("link")).starts_with("Glossy/best/Gloss"));
}

}  // namespace
