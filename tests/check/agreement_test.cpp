// The examination against the reader and the writer, on documents that were spoiled in all sorts of
// ways.

#include "tests/check/agreement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>

#include "tests/check/codetables.h"
#include "tests/check/mutations.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tool/check/examine.h"

namespace {

using Spoil = std::string (&)(const std::string& document, std::mt19937& random);

struct Tally {
  int refused = 0, warned = 0, clean = 0;
};

Tally ExpectAgreement(const std::string& document, Spoil spoil, unsigned int count) {
  const TempFolder folder;
  Tally tally;
  for (unsigned int seed = 0; seed < count && !testing::Test::HasFailure(); ++seed) {
    std::mt19937 random(seed);
    const std::string text = spoil(document, random);
    const std::string path = folder.Write("spoilt.qdf", text);
    EXPECT_EQ(Disagreement(path, folder.Path("written.qdf")), "") << "seed " << seed << "\n"
                                                                  << text;
    const check::Examination examination = check::Examine(path);
    const bool error = Finds(examination, check::Severity::kError);
    const bool warning = Finds(examination, check::Severity::kWarning);
    ++(error ? tally.refused : warning ? tally.warned : tally.clean);
    std::remove(path.c_str());  // some disks take their time to replace a file
  }
  return tally;
}

TEST(Agreement, OfMutatedDocuments) {
  const std::string document = ReadCodeTables().document;
  const Tally tally = ExpectAgreement(document, Mutated, 2000);
  EXPECT_GT(tally.clean, 200);
  EXPECT_GT(tally.warned, 1000);
  EXPECT_GT(tally.refused, 50);
  for (const char* name : {"/OutputDrivers/dyesub6.qdf", "/OutputDrivers/plot36.qdf"}) {
    ExpectAgreement(ReadFile(QDF_EXAMPLES + std::string(name)), Mutated, 100);
  }
}

TEST(Agreement, OfGarbledDocuments) {
  const Tally tally = ExpectAgreement(ReadCodeTables().document, Garbled, 5000);
  EXPECT_GT(tally.clean, 80);
  EXPECT_GT(tally.warned, 400);
  EXPECT_GT(tally.refused, 1000);
}

// Of the document of the page a write loses much; here that is taken out.
TEST(Agreement, OfMutatedDocumentsThatAWriteKeeps) {
  std::string document = ReadCodeTables().document;
  for (const char* lost : {" DefaultInk=\"1\"", " DefaultDither=\"Fine\"", " DefaultMarginID=\"1\"",
                           "<Dither Name=\"Fine\" RipResolution=\"600\"/>"}) {
    document = Replaced(document, lost, "");
  }
  const TempFolder folder;
  EXPECT_THAT(check::Examine(folder.Write("kept.qdf", document), {true, false}).findings,
              testing::SizeIs(3));  // that there is no default, thrice
  EXPECT_GT(ExpectAgreement(document, Mutated, 1500).clean, 150);
}

}  // namespace
