#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/files.h"
#include "tests/tool/document.h"
#include "tests/tool/run.h"

namespace {

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
    "*Cyan=/<E9>t:\n";

class QdfLocalise : public testing::Test {
 protected:
  QdfLocalise() {
    folder_.Write("OutputDrivers/small.qdf", kSmallDocument);
    folder_.Write("OutputDrivers/small.txt", kTable);
  }

  Outcome Run(const std::string& words) const {
    return RunTool(SplitWords("localise " + words), {folder_.Path()});
  }

  TempFolder folder_;
};

TEST_F(QdfLocalise, ShowsTheTranslatedDocument) {
  const Outcome shown = Run("small.qdf");
  EXPECT_TRUE(
      shown.out.starts_with("Document:           OutputDrivers/small.qdf\n"
                            "Table file:         OutputDrivers/small.txt\n"
                            "Names translated:   5\n"
                            "Product type:       small\n"))
      << shown;
  EXPECT_NE(shown.out.find("\n  11  Brillant      gl                        0  Glossy\n"),
            std::string::npos)
      << shown;
  const nlohmann::json report = RunJson({"localise", "small.qdf"}, {folder_.Path()});
  EXPECT_EQ(report["translated"], 5);
  EXPECT_EQ(report["inks"][0]["displayName"], "Noir photo");
  EXPECT_EQ(report["mediaSizes"][0]["displayName"], "DIN A4");
  EXPECT_EQ(report["colorModes"][0]["colorants"][0]["displayName"], "\xef\xbf\xbdt");
}

TEST_F(QdfLocalise, WritesTranslatedMediaToo) {
  const Outcome written = Run("small.qdf -o new.qdf");
  EXPECT_TRUE(
      written.out.starts_with("Document:          OutputDrivers/small.qdf\n"
                              "Table file:        OutputDrivers/small.txt\n"
                              "Names translated:  5\n"
                              "Written:           new.qdf\n"
                              "\nNo longer held (10)\n"))
      << written;
  const nlohmann::json shown = RunJson({"show", "./new.qdf"}, {folder_.Path()});
  EXPECT_EQ(shown["media"][1]["displayName"], "Brillant");
  EXPECT_EQ(shown["media"][1]["id"], 11);
  EXPECT_EQ(shown["inks"][0]["displayName"], "Noir photo");
  EXPECT_EQ(ReadFile(folder_.Path("OutputDrivers/small.qdf")), kSmallDocument);
}

TEST_F(QdfLocalise, ListsHowDocumentAndTableMissEachOther) {
  EXPECT_EQ(Run("small.qdf --untranslated"), (Outcome{0, R"(Document:    OutputDrivers/small.qdf
Table file:  OutputDrivers/small.txt

Names without an entry (16)
  List           Display name  IDs
  Inks           Matte Black   2
  Inks           Unused        3
  Media          10            12
  Media          Plain         10
  Print modes    Draft         20
  Print modes    Best          21
  Resolutions    300 dpi       30
  Resolutions    fine          31
  Colour modes   Colour        40
  Colorants      Gold          40
  Colour modes   Grey          41
  Media sources  Roll          50
  Media sources  Tray          51
  Media sizes    A3            61
  Margins        narrow        70
  Margins        wide          71

Entries that no name uses (1)
  Line  Key   Translation
     5  Gone  Parti

Lines that don't count (3)
  Line  Why                            Text
     2  line 6 has the same key        Glossy=Matt
     4  it has no "="                  no pair
     8  nothing stands before the "="  =nothing
)"}));
}

TEST_F(QdfLocalise, TellsOfPiecesOfLinesAndOfWhatANulHides) {
  using namespace std::string_literals;
  folder_.Write("OutputDrivers/small.txt",
                "Glossy=" + std::string(1020, 'x') +
                    "\nA4=DIN\0 A4\n \0A3=DIN A3\nGlossy=Matt\nPlain=Uni\0\n"s);
  const nlohmann::json report =
      RunJson({"localise", "small.qdf", "--untranslated"}, {folder_.Path()});
  std::string ignored;
  for (const nlohmann::json& row : report["ignored"]) {
    const std::string text = row["text"];
    ignored += std::to_string(row["line"].get<int>()) + ' ' + std::string(row["reason"]) + " | " +
               text.substr(0, 8) + '\n';
  }
  EXPECT_EQ(ignored,
            "1 a line of more than 1,023 characters, piece 2: it has no \"=\" | xxxx\n"
            "1 a line of more than 1,023 characters, piece 1: line 4 has the same key | Glossy=x\n"
            "2 what stands behind a NUL isn't read | A4\n"
            "3 what stands behind a NUL isn't read | A3=DIN A\n");
}

TEST_F(QdfLocalise, RefusesWhatIsNoTableOfTheDocument) {
  const auto document = [](const std::string& table) {
    std::string text = kSmallDocument;
    return text.replace(text.find("small.txt"), 9, table);
  };
  folder_.Write("OutputDrivers/none.qdf", document(""));
  folder_.Write("OutputDrivers/up.qdf", document("../OutputDrivers/small.txt"));
  folder_.Write("OutputDrivers/dots.qdf", document(".."));
  folder_.Write("OutputDrivers/lost.qdf", document("lost.txt"));
  folder_.Write("OutputDrivers/folder.qdf", document("folder"));
  folder_.Write("OutputDrivers/folder/file", "");
  ASSERT_EQ(symlink("OutputDrivers/small.txt", folder_.Path("link").c_str()), 0);
  const struct {
    const char* words;
    int code;
    const char* line;
  } refusals[] = {
      {"none.qdf", 1, "OutputDrivers/none.qdf: it names no translation table"},
      {"up.qdf", 1,
       "OutputDrivers/up.qdf: the name of its translation table, \"../OutputDrivers/small.txt\", "
       "is no bare file name"},
      {"dots.qdf", 1,
       "OutputDrivers/dots.qdf: the name of its translation table, \"..\", is no bare file name"},
      {"lost.qdf --untranslated", 1,
       "OutputDrivers/lost.txt: no such file under the working folder, see -C"},
      {"folder.qdf", 1, "OutputDrivers/folder: it is a folder"},
      {"small.qdf -o no/new.qdf", 1, "no/new.qdf: it can't be saved: its folder isn't there"},
      {"small.qdf -o OutputDrivers/small.txt", 1,
       "OutputDrivers/small.txt: this is the document's translation table"},
      {"small.qdf -o link", 1, "link: this is the document's translation table"},
      {"small.qdf -o x --untranslated", 2, "--output and --untranslated don't go together"},
  };
  for (const auto& refusal : refusals) {
    EXPECT_EQ(Run(refusal.words),
              (Outcome{refusal.code, "", std::string("qdf: ") + refusal.line + '\n'}));
  }
  EXPECT_EQ(ReadFile(folder_.Path("OutputDrivers/small.txt")), kTable);
}

}  // namespace
