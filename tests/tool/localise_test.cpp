// qdf localise shows and writes translated documents, and tells how the table misses them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/documents.h"
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

class QdfLocalise : public QdfTest {
 protected:
  QdfLocalise() {
    folder_.Write("OutputDrivers/small.qdf", kSmallDocument);
    folder_.Write("OutputDrivers/small.txt", kTable);
  }
};

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

}  // namespace
