// Which files of a folder tree are HP resources, and what is read from them.

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
  const std::pair<const char*, const char*> rows[] = {
      {"/top/Glossy/best/Glossy_best.xml", "Glossy best Glossy_best.xml"},
      {"Glossy/best/gLOSSY_Best.XML", "Glossy best gLOSSY_Best.XML"},
      {"/a_b/c/a_b_c.xml", "a_b c a_b_c.xml"},
      {"/a//b/a_b.xml", "a b a_b.xml"}};
  for (const auto& [path, expected] : rows) {
    const auto name = FindResourceName(path);
    ASSERT_TRUE(name) << path;
    EXPECT_EQ(
        Join({std::string(name->media), std::string(name->quality), std::string(name->file)}, " "),
        expected);
  }
  for (const std::string& path :
       Split("/G/best/best_G.xml|/G/best/other.xml|/G/best/G_best.xm|/G/best/G_best.xml.bak|"
             "/G/best/G-best.xml|/G/best/deeper/G_best.xml|best/_best.xml|/best/_best.xml|"
             "G_best.xml|.xml|")) {
    EXPECT_FALSE(FindResourceName(path)) << path;
  }
}

TEST(LevelsToDepth, IsExactForEveryPowerOfTwo) {
  for (int n = 2; n <= 30; ++n) {
    EXPECT_EQ(LevelsToDepth((1 << n) - 1), n - 1);
    EXPECT_EQ(LevelsToDepth(1 << n), n);
    EXPECT_EQ(LevelsToDepth((1 << n) + 1), n);
  }
  EXPECT_EQ(LevelsToDepth(2), 1);
  for (const int none : {1, 0, -8, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(LevelsToDepth(none), 0);
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

std::string Dump(const APtrArray& records) {
  std::vector<std::string> texts;
  for (const auto& record : Records<HPResourceInfo>(records)) texts.push_back(Dump(record));
  return Join(texts, "\n");
}

std::string Found(const std::string& folder) {
  Resources records;
  PMGetHPRecursive(folder.c_str(), records);
  return Dump(records);
}

constexpr const char* kGlossy = "Glossy/best/Gloss/Best/600/KCMY/p.icc/0 600 600 1 2 1/";

TEST(ResourceFile, IsReadLeniently) {
  const struct {
    std::string quality;
    const char* text;
    const char* record;
  } rows[] = {
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
       "<r><fileNames><outputICC>a</outputICC></fileNames><fileNames/><DisplayName>A</DisplayName>"
       "<x><displayName>B</displayName></x>"
       "<halftoningParms algorithm='4' inputHRes='1'/><halftoningParms inputVRes='2'/></r>",
       "M/q/////a/0 0 2 0 0 0/M_q.xml"},
      {"q", "<r>", ""},
      {"q", "", ""}};
  for (const auto& row : rows) {
    const TempFolder folder;
    folder.Write("M/" + row.quality + "/M_" + row.quality + ".xml", row.text);
    EXPECT_EQ(Found(folder.Path()), row.record) << row.text;
  }
  EXPECT_EQ(ParseHPResourceFile(nullptr, nullptr), 0);
}

TEST(ResourceFile, IsLoadedFromAPathUnderTheToldNames) {
  const TempFolder folder;
  Resources records;
  for (const std::string& file : {folder.Write("broken.xml", "<r>"), folder.Path("missing.xml"),
                                  WriteResource(folder, "t", {})}) {
    AFilePath path(file.c_str());
    LoadHPResourceFile(path, records, "media", "quality", "file");
  }
  EXPECT_EQ(Dump(records), "media/quality/Gloss/Best/600/KCMY/p.icc/0 600 600 1 2 1/file");
}

TEST(Discovery, FindsResourcesAtAnyDepthInTheOrderOfTheSearch) {
  const TempFolder folder;
  for (const char* file : {"b/Q/b_q.xml", "B/q/B_q.xml", "B/q/b_Q.XML", "B/q/other.xml", "a.xml",
                           "A/x/y/z/y_z.xml", "A/x/A_x.xml", "c/d/d_c.xml"}) {
    folder.Write(file, "<r/>");
  }
  folder.Write("c/bad/c_bad.xml", "<r");
  const std::string rest = "//////0 0 0 0 0 0/";
  const std::string below = "A/x" + rest + "A_x.xml\ny/z" + rest + "y_z.xml";
  const std::string all = Join(
      {below, "B/q" + rest + "B_q.xml", "B/q" + rest + "b_Q.XML", "b/Q" + rest + "b_q.xml"}, "\n");
  EXPECT_EQ(Found(folder.Path() + "//"), all);
  const WorkingFolder in(folder.Path());
  EXPECT_EQ(Found("."), all);
  EXPECT_EQ(Found("A/x"), below);
  for (const char* none : {"", "missing", "a.xml"}) EXPECT_EQ(Found(none), "") << none;
}

// At a path that is longer than the system takes in one piece, among files whose names begin like
// the resource's. In memory where the machine has such a folder: many disks are slow to make so
// many.
TEST(Discovery, FindsAResourceAtAnEndlessPathAmongManyFiles) {
  const fs::path memory = "/dev/shm";
  const TempFolder folder(access(memory.c_str(), W_OK) == 0 ? memory : fs::temp_directory_path());
  const fs::path resource = WriteResource(folder, ".", {});
  const Descriptor best = OpenFolder(resource.parent_path().c_str());
  for (int i = 0; i < 100'000; ++i) {
    const std::string name = "Glossy_best.xml" + std::to_string(i);
    ASSERT_EQ(mknodat(best.Number(), name.c_str(), S_IFREG | 0600, 0), 0);
  }
  const std::string name(250, 'x');
  fs::create_directory(folder.Path("t"));
  Descriptor deep = OpenFolder(folder.Path("t").c_str());
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(mkdirat(deep.Number(), name.c_str(), 0755), 0);
    deep = OpenSubfolder(deep, name.c_str());
  }
  ASSERT_EQ(renameat(AT_FDCWD, folder.Path("Glossy").c_str(), deep.Number(), "Glossy"), 0);
  EXPECT_EQ(Found(folder.Path()), kGlossy + std::string("Glossy_best.xml"));
  RemoveFolderTree(folder.Path("t").c_str());
  EXPECT_TRUE(fs::is_empty(folder.Path()));
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
  EXPECT_EQ(records.GetSize(), 2);
  EXPECT_EQ(static_cast<HPResourceInfo*>(records[0])->MediaName, "Own");
  // The folder itself may be reached through one.
  fs::create_directory_symlink(outside.Path(), folder.Path("link"));
  EXPECT_TRUE(Found(folder.Path("link")).starts_with("Glossy/best/Gloss"));
}

}  // namespace
