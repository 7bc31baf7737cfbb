// The files that a document names: qdf localise and its table, qdf media and what it changes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <chrono>

#include "tests/tool/document.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

// The names in the small document are Photo Black, Glossy, Draft and so on.
constexpr const char* kTable =
    "*Photo Black=/Noir photo:\n"
    "Glossy=Matt\n"
    "\n"
    "no pair\n"
    "Gone=Parti\n"
    "Glossy=Brillant\n"
    "*A4=/DIN A4:\n"
    "=nothing\n"
    "*Cyan=/<E9>t:\n"
    "d=dd\n"
    "ee=e\n"
    "ff=/:\n";

constexpr const char* kFile =
    "# set by hand\n"
    "key_DisplayName_ForMedia=pl/Everyday\n"
    "key_Iccprofile=first.icc\n"
    "\n"
    "key_Iccprofile_ForMedia=pl/pl.icc\n"
    "key_DisplayName_ForMedia=lonely\n"
    "key_DisplayName_ForMedia=own/Own=Way/2\n";

constexpr const char* kPath = "OutputDrivers/small_custom.txt";

class DriverFiles : public QdfTest {
 protected:
  DriverFiles() {
    folder_.Write("OutputDrivers/small.qdf", kSmallDocument);
    folder_.Write("OutputDrivers/small.txt", kTable);
    folder_.Write(kPath, kFile);
  }
};

using QdfLocalise = DriverFiles;

TEST_F(QdfLocalise, ShowsOrWritesTheTranslatedDocument) {
  const std::string shown = Run("localise small.qdf").out;
  EXPECT_THAT(shown, StartsWith("Document:           OutputDrivers/small.qdf\n"
                                "Table file:         OutputDrivers/small.txt\n"
                                "Names translated:   5\n"
                                "Product type:       small\n"));
  EXPECT_THAT(shown, HasSubstr("\n  11  Brillant      gl                        0  Glossy\n"));
  EXPECT_EQ(Json("localise small.qdf")["colorModes"][0]["colorants"][0]["displayName"],
            "\xef\xbf\xbdt");
  EXPECT_THAT(
      Run("localise small.qdf -o new.qdf").out,
      HasSubstr("Names translated:  5\nWritten:           new.qdf\n\nNo longer held (10)\n"));
  const nlohmann::json written = Json("show ./new.qdf");
  EXPECT_EQ(written["media"][1]["displayName"], "Brillant");
  EXPECT_EQ(written["media"][1]["id"], 11);
  EXPECT_EQ(written["inks"][0]["displayName"], "Noir photo");
  EXPECT_EQ(written["mediaSizes"][0]["displayName"], "DIN A4");
  EXPECT_EQ(File("OutputDrivers/small.qdf"), kSmallDocument);
}

TEST_F(QdfLocalise, ListsHowDocumentAndTableMissEachOther) {
  EXPECT_EQ(From("Entries", Run("localise small.qdf --untranslated")),
            R"(Entries that no name uses (1)
  Line  Key   Translation
     5  Gone  Parti

Lines that don't count (6)
  Line  Why                                      Text
     2  line 6 has the same key                  Glossy=Matt
     4  it has no "="                            no pair
     8  nothing stands before the "="            =nothing
    10  the key has fewer than two characters    d=dd
    11  the value has fewer than two characters  ee=e
    12  nothing is left of the value             ff=/:
)");
  // Each name once, and none that is empty.
  EXPECT_EQ(Json("localise small.qdf --untranslated")["untranslated"].size(), 16U);
}

TEST_F(QdfLocalise, TellsOfPiecesOfLinesAndOfWhatANulHides) {
  using namespace std::string_literals;
  folder_.Write("OutputDrivers/small.txt",
                "Glossy=" + std::string(1020, 'x') +
                    "\nA4=DIN\0 A4\n \0A3=DIN A3\nGlossy=Matt\nPlain=Uni\0\n"s);
  const nlohmann::json rows = Json("localise small.qdf --untranslated")["ignored"];
  std::string ignored;
  for (const auto& row : rows) {
    ignored += row["line"].dump() + ' ' + row["reason"].get<std::string>() + " | " +
               row["text"].get<std::string>().substr(0, 8) + '\n';
  }
  EXPECT_EQ(ignored,
            "1 a line of more than 1,023 characters, piece 2: it has no \"=\" | xxxx\n"
            "1 a line of more than 1,023 characters, piece 1: line 4 has the same key | Glossy=x\n"
            "2 what stands behind a NUL isn't read | A4\n"
            "3 what stands behind a NUL isn't read | A3=DIN A\n");
}

TEST_F(QdfLocalise, RefusesWhatIsNoTableOfTheDocument) {
  for (const char* name : {"", "..", "lost.txt", "folder"}) {
    folder_.Write(Join({"OutputDrivers/d", name, ".qdf"}, ""),
                  Replaced(kSmallDocument, "small.txt", name));
  }
  folder_.Write("OutputDrivers/folder/file", "");
  ASSERT_EQ(symlink("OutputDrivers/small.txt", folder_.Path("link").c_str()), 0);
  const Refusals refusals = {
      {"d.qdf", "OutputDrivers/d.qdf: it names no translation table"},
      {"d...qdf",
       "OutputDrivers/d...qdf: the name of its translation table, \"..\", is no bare file name"},
      {"dlost.txt.qdf --untranslated",
       "OutputDrivers/lost.txt: no such file under the working folder, see -C"},
      {"dfolder.qdf", "OutputDrivers/folder: it is a folder"},
      {"small.qdf -o link", "link: this is the document's translation table"},
  };
  ExpectRefusals("localise", refusals);
  EXPECT_EQ(File("OutputDrivers/small.txt"), kTable);
}

using QdfMedia = DriverFiles;

TEST_F(QdfMedia, ShowsTheFileAndChangesIt) {
  EXPECT_EQ(From("Media (2)", Run("media small.qdf")), R"(Media (2)
  Medium  Display name  Profile  IDs in the document
  pl      Everyday      pl.icc   10
  own     Own=Way/2     -        none

Lines that don't count (2)
  Line  Why            Text
     1  it has no "="  # set by hand
     6  it has no "/"  key_DisplayName_ForMedia=lonely
)");
  EXPECT_EQ(File(kPath), kFile);
  const Outcome changed =
      Run("media small.qdf --set-name own= --set-profile Glossy=g.icc --set-name Glossy=Silk "
          "--add-profile b.icc --add-profile FIRST.ICC --remove pl");
  EXPECT_EQ(changed.code, 0) << changed;
  EXPECT_THAT(changed.out, AllOf(HasSubstr("State:              saved\n"),
                                 HasSubstr("  Glossy  Silk          g.icc    11, 13\n"),
                                 HasSubstr("\nLines that were dropped (2)\n")));
  EXPECT_EQ(File(kPath),
            "key_Iccprofile=first.icc\n"
            "key_Iccprofile=b.icc\n"
            "key_DisplayName_ForMedia=Glossy/Silk\n"
            "key_Iccprofile_ForMedia=Glossy/g.icc\n");
}

TEST_F(QdfMedia, MakesTheFileAndNeverHidesThatTheLastEntryStays) {
  ASSERT_EQ(unlink(folder_.Path(kPath).c_str()), 0);
  EXPECT_EQ(Json("media small.qdf")["state"], "no such file");
  EXPECT_FALSE(Has(kPath));
  EXPECT_EQ(Json("media small.qdf --set-name gl=Silk")["media"].dump(),
            R"([{"displayName":"Silk","ids":[11],"media":"gl","profile":null}])");
  const std::string last = "key_DisplayName_ForMedia=gl/Silk\n";
  EXPECT_EQ(File(kPath), last);
  const std::string line =
      "OutputDrivers/small_custom.txt: that would remove the last entry, but the library never "
      "writes a file without entries, so the old lines would stay; delete the file";
  ExpectRefusals("media small.qdf", {{"--remove gl", line}, {"--set-name gl=", line}});
  EXPECT_EQ(File(kPath), last);
  EXPECT_EQ(Run("media small.qdf --remove gl --set-name pl=Silk").code, 0);
  EXPECT_EQ(File(kPath), "key_DisplayName_ForMedia=pl/Silk\n");
}

TEST_F(QdfMedia, RefusesWhatTheFileCannotHold) {
  std::string tooLong = "x";
  while (tooLong.size() < 997) tooLong += "\u00e9";
  const std::array<std::string, 3> refusals[] = {
      {"--set-name", "pl", "--set-name takes a medium, \"=\" and what to set for it, not \"pl\""},
      {"--set-profile", "=p",
       "--set-profile takes a medium, \"=\" and what to set for it, not \"=p\""},
      {"--add-profile", "", "--add-profile takes the name of a profile"},
      {"--set-name", "a/b=c", "--set-name: the name of a medium can't hold \"/\": \"a/b=c\""},
      {"--remove", "", "--remove: the name of the medium is empty: \"\""},
      {"--set-name", "a=b\nc",
       "--set-name: a line of the file can't hold a line break: \"a=b\\x0Ac\""},
      {"--set-name", " =b", "--set-name: white space at the ends of a text gets lost: \" =b\""},
      {"--set-name", "a= b", "--set-name: white space at the ends of a text gets lost: \"a= b\""},
      {"--add-profile", " p", "--add-profile: white space at the ends of a text gets lost: \" p\""},
      {"--set-name", "a=" + tooLong,
       "--set-name: a line of the file has at most 1,023 characters, not 1024: \"a=" +
           tooLong.substr(0, 97) + "...\""},
      {"--set-profile", "gl=", kPath + std::string(": nothing is set for medium \"gl\"")},
  };
  for (const auto& [option, value, line] : refusals) {
    EXPECT_EQ(RunWords({"media", "small.qdf", option, value}), Refused(line, 2));
  }
  EXPECT_EQ(File(kPath), kFile);
}

TEST_F(QdfMedia, TakesSecondsAtMostForAFullFile) {
  std::string text;
  for (int i = 0; i < 60'000; ++i) {
    text += "key_DisplayName_ForMedia=medium" + std::to_string(i) + "/name\n";
  }
  folder_.Write(kPath, text);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(Run("media small.qdf --set-name medium59999=last").code, 0);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  EXPECT_EQ(File(kPath), text.replace(text.rfind("name"), 4, "last"));
}

TEST_F(QdfMedia, ReplacesNothingButACustomMediaFile) {
  const auto document = [](const char* file) {
    return Replaced(kSmallDocument, "small_custom.txt", file);
  };
  folder_.Write("OutputDrivers/up.qdf", document("../up.txt"));
  const std::string path = folder_.Write("OutputDrivers/self.qdf", document("linked.qdf"));
  ASSERT_EQ(link(path.c_str(), folder_.Path("OutputDrivers/linked.qdf").c_str()), 0);
  folder_.Write("OutputDrivers/table.qdf", document("small.txt"));
  const std::string notes = "key_iccprofile=x\n\nkey=\n";
  folder_.Write(kPath, notes);
  const std::pair<const char*, const char*> refusals[] = {
      {"up", "up.qdf: the name of its custom media file, \"../up.txt\", is no bare file name"},
      {"self", "linked.qdf: this is the document itself"},
      {"table", "small.txt: this is the document's translation table"},
      {"small", "small_custom.txt: this is no custom media file: none of its 3 lines is an entry"},
  };
  for (const auto& [name, line] : refusals) {
    EXPECT_EQ(Run(Join({"media ", name, ".qdf --set-name a=b"}, "")),
              Refused(std::string("OutputDrivers/") + line));
  }
  EXPECT_FALSE(Has("up.txt"));
  EXPECT_EQ(ReadFile(path), document("linked.qdf"));
  EXPECT_EQ(File("OutputDrivers/small.txt"), kTable);
  EXPECT_EQ(File(kPath), notes);
  for (const char* harmless : {"", " \n\n", "key_DisplayName_ForMedia=pl/\nnote\n"}) {
    folder_.Write(kPath, harmless);
    EXPECT_EQ(Run("media small.qdf --set-name a=b").code, 0) << harmless;
  }
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755) + chmod(folder_.Path(kPath).c_str(), 0), 0);
  EXPECT_EQ(Run("media small.qdf --set-name a=b", {.asNobody = true}),
            Refused("OutputDrivers/small_custom.txt: no permission to read it"));
}

}  // namespace
