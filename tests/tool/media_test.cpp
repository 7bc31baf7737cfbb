#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "tests/children.h"
#include "tests/files.h"
#include "tests/tool/document.h"
#include "tests/tool/run.h"

namespace {

constexpr const char* kFile =
    "# set by hand\n"
    "key_DisplayName_ForMedia=pl/Everyday\n"
    "key_Iccprofile=first.icc\n"
    "\n"
    "key_Iccprofile_ForMedia=pl/pl.icc\n"
    "key_DisplayName_ForMedia=lonely\n"
    "key_DisplayName_ForMedia=own/Own=Way/2\n";

constexpr const char* kPath = "OutputDrivers/small_custom.txt";

std::string DocumentNaming(const std::string& file) {
  std::string text = kSmallDocument;
  return text.insert(text.find("<InkList>"), "<CustomMediaFile>" + file + "</CustomMediaFile>");
}

class QdfMedia : public testing::Test {
 protected:
  QdfMedia() {
    folder_.Write("OutputDrivers/small.qdf", DocumentNaming("small_custom.txt"));
    folder_.Write(kPath, kFile);
  }

  Outcome Run(const Words& changes, Setting setting = {}) const {
    Words words = {"media", "small.qdf"};
    words.insert(words.end(), changes.begin(), changes.end());
    setting.folder = folder_.Path();
    return RunTool(words, setting);
  }

  std::string File() const { return ReadFile(folder_.Path(kPath)); }

  TempFolder folder_;
};

TEST_F(QdfMedia, ShowsTheFileAndLeavesItAlone) {
  EXPECT_EQ(Run({}), (Outcome{0, R"(Document:           OutputDrivers/small.qdf
Custom media file:  OutputDrivers/small_custom.txt
State:              read

Profiles (1)
  Name
  first.icc

Media (2)
  Medium  Display name  Profile  IDs in the document
  pl      Everyday      pl.icc   10
  own     Own=Way/2     -        none

Lines that don't count (2)
  Line  Why            Text
     1  it has no "="  # set by hand
     6  it has no "/"  key_DisplayName_ForMedia=lonely
)"}));
  EXPECT_EQ(File(), kFile);
}

TEST_F(QdfMedia, ChangesTheFile) {
  const Outcome changed =
      Run({"--set-name", "own=", "--set-profile", "Glossy=g.icc", "--set-name", "Glossy=Silk",
           "--add-profile", "b.icc", "--add-profile", "FIRST.ICC", "--remove", "pl"});
  EXPECT_EQ(changed.code, 0) << changed;
  EXPECT_NE(changed.out.find("State:              saved\n"), std::string::npos);
  EXPECT_NE(changed.out.find("  Glossy  Silk          g.icc    11, 13\n"), std::string::npos)
      << changed;
  EXPECT_NE(changed.out.find("\nLines that were dropped (2)\n"), std::string::npos);
  EXPECT_EQ(File(),
            "key_Iccprofile=first.icc\n"
            "key_Iccprofile=b.icc\n"
            "key_DisplayName_ForMedia=Glossy/Silk\n"
            "key_Iccprofile_ForMedia=Glossy/g.icc\n");
}

TEST_F(QdfMedia, MakesTheFileWhenThereIsNone) {
  ASSERT_EQ(unlink(folder_.Path(kPath).c_str()), 0);
  const nlohmann::json none = RunJson({"media", "small.qdf"}, {folder_.Path()});
  EXPECT_EQ(none["state"], "no such file");
  EXPECT_EQ(none["media"], nlohmann::json::array());
  EXPECT_FALSE(std::filesystem::exists(folder_.Path(kPath)));
  const nlohmann::json made =
      RunJson({"media", "small.qdf", "--set-name", "gl=Silk"}, {folder_.Path()});
  EXPECT_EQ(made["media"], nlohmann::json::parse(R"([{"media": "gl", "displayName": "Silk",
                                                      "profile": null, "ids": [11]}])"));
  EXPECT_EQ(File(), "key_DisplayName_ForMedia=gl/Silk\n");
}

TEST_F(QdfMedia, NeverHidesThatTheLastEntryStays) {
  const std::string last = "key_DisplayName_ForMedia=pl/Everyday\n";
  folder_.Write(kPath, last);
  const std::string line = "qdf: " + std::string(kPath) +
                           ": that would remove the last entry, but the library never writes a "
                           "file without entries, so the old lines would stay; delete the file\n";
  EXPECT_EQ(Run({"--remove", "pl"}), (Outcome{1, "", line}));
  EXPECT_EQ(Run({"--set-name", "pl="}), (Outcome{1, "", line}));
  EXPECT_EQ(File(), last);
  EXPECT_EQ(Run({"--remove", "pl", "--set-name", "gl=Silk"}).code, 0);
  EXPECT_EQ(File(), "key_DisplayName_ForMedia=gl/Silk\n");
}

TEST_F(QdfMedia, RefusesWhatTheFileCannotHold) {
  const std::string file = kPath;
  std::string tooLong = "x";
  while (tooLong.size() < 997) tooLong += "\u00e9";
  const struct {
    Words words;
    std::string line;
  } refusals[] = {
      {{"--set-name", "pl"}, "--set-name takes a medium, \"=\" and what to set for it, not \"pl\""},
      {{"--set-profile", "=p"},
       "--set-profile takes a medium, \"=\" and what to set for it, not \"=p\""},
      {{"--add-profile", ""}, "--add-profile takes the name of a profile"},
      {{"--set-name", "a/b=c"}, "--set-name: the name of a medium can't hold \"/\": \"a/b=c\""},
      {{"--remove", ""}, "--remove: the name of the medium is empty: \"\""},
      {{"--set-name", "a=b\nc"},
       "--set-name: a line of the file can't hold a line break: \"a=b\\x0Ac\""},
      {{"--set-name", "a= b"}, "--set-name: white space at the ends of a text gets lost: \"a= b\""},
      {{"--set-name", " =b"}, "--set-name: white space at the ends of a text gets lost: \" =b\""},
      {{"--add-profile", " p"},
       "--add-profile: white space at the ends of a text gets lost: \" p\""},
      {{"--set-name", "a=" + tooLong},
       "--set-name: a line of the file has at most 1,023 characters, not 1024: \"a=" +
           tooLong.substr(0, 97) + "...\""},
      {{"--remove", "Pl"}, file + ": nothing is set for medium \"Pl\""},
      {{"--set-profile", "gl="}, file + ": nothing is set for medium \"gl\""},
  };
  for (const auto& refusal : refusals) {
    EXPECT_EQ(Run(refusal.words), (Outcome{2, "", "qdf: " + refusal.line + '\n'}));
  }
  EXPECT_EQ(File(), kFile);
}

TEST_F(QdfMedia, TakesSecondsAtMostForAFullFile) {
  std::string text;
  for (int i = 0; i < 60'000; ++i) {
    text += "key_DisplayName_ForMedia=medium" + std::to_string(i) + "/name\n";
  }
  folder_.Write(kPath, text);
  EXPECT_EQ(InChild([&] {
              const rlimit seconds{5, 5};
              setrlimit(RLIMIT_CPU, &seconds);
              return Run({"--set-name", "medium59999=last"}).code;
            }),
            0);
  EXPECT_EQ(File(), text.replace(text.rfind("name"), 4, "last"));
}

TEST_F(QdfMedia, SaysWhyTheFileCannotBeReadOrSaved) {
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
  const std::string start = "qdf: " + std::string(kPath) + ": ";
  EXPECT_EQ(Run({"--remove", "pl"}, {.asNobody = true}),
            (Outcome{1, "", start + "it can't be saved: no permission to write it\n"}));
  folder_.Write(kPath, kFile + ("key_Iccprofile=" + std::string(900, 'p')) + '\n' + kFile);
  const std::string before = File();
  EXPECT_EQ(InChild([&] {
              LimitFileSizes(900);
              const Outcome full{1, "", start + "it can't be saved: there is no room for it\n"};
              return Run({"--remove", "pl"}) == full ? 0 : 1;
            }),
            0);
  EXPECT_EQ(File(), before);
  ASSERT_EQ(chmod(folder_.Path(kPath).c_str(), 0), 0);
  EXPECT_EQ(Run({"--set-name", "a=b"}, {.asNobody = true}),
            (Outcome{1, "", start + "no permission to read it\n"}));
}

TEST_F(QdfMedia, ReplacesNothingButACustomMediaFile) {
  const std::string document = DocumentNaming("linked.qdf");
  const std::string path = folder_.Write("OutputDrivers/self.qdf", document);
  ASSERT_EQ(link(path.c_str(), folder_.Path("OutputDrivers/linked.qdf").c_str()), 0);
  folder_.Write("OutputDrivers/table.qdf", DocumentNaming("small.txt"));
  folder_.Write("OutputDrivers/small.txt", "key_Iccprofile=x\n");
  const std::string notes = "key_iccprofile=x\n\nkey=\n";
  folder_.Write(kPath, notes);
  const struct {
    const char* document;
    std::string line;
  } refusals[] = {
      {"self.qdf", "OutputDrivers/linked.qdf: this is the document itself"},
      {"table.qdf", "OutputDrivers/small.txt: this is the document's translation table"},
      {"small.qdf", std::string(kPath) + ": this is no custom media file: none of its 3 lines is "
                                         "an entry"},
  };
  for (const auto& refusal : refusals) {
    EXPECT_EQ(RunTool({"media", refusal.document, "--set-name", "a=b"}, {folder_.Path()}),
              (Outcome{1, "", "qdf: " + refusal.line + '\n'}));
  }
  EXPECT_EQ(ReadFile(path), document);
  EXPECT_EQ(ReadFile(folder_.Path("OutputDrivers/small.txt")), "key_Iccprofile=x\n");
  EXPECT_EQ(File(), notes);
  for (const char* harmless : {"", " \n\n", "key_DisplayName_ForMedia=pl/\nnote\n"}) {
    folder_.Write(kPath, harmless);
    EXPECT_EQ(Run({"--set-name", "a=b"}).code, 0) << harmless;
  }
}

TEST_F(QdfMedia, TouchesNothingOutsideOfOutputDrivers) {
  folder_.Write("OutputDrivers/none.qdf", kSmallDocument);
  folder_.Write("OutputDrivers/up.qdf", DocumentNaming("../up.txt"));
  EXPECT_EQ(RunTool({"media", "none.qdf"}, {folder_.Path()}),
            (Outcome{1, "", "qdf: OutputDrivers/none.qdf: it names no custom media file\n"}));
  EXPECT_EQ(RunTool({"media", "up.qdf", "--set-name", "a=b"}, {folder_.Path()}),
            (Outcome{1, "",
                     "qdf: OutputDrivers/up.qdf: the name of its custom media file, \"../up.txt\", "
                     "is no bare file name\n"}));
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("up.txt")));
}

}  // namespace
