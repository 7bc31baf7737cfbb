// The examination against the reader and the writer, on documents that were spoiled in all sorts of
// ways.

#include "tests/check/agreement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "tests/check/codetables.h"
#include "tests/check/mutations.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tool/check/examine.h"

namespace {

using Spoil = std::string (&)(const std::string& document, std::mt19937& random);
using Counts = std::array<int, 3>;  // of documents that are clean, warned of and refused

// At least so many of them are of each kind.
void ExpectAgreement(const std::string& document, Spoil spoil, unsigned int count, Counts least) {
  const TempFolder folder;
  Counts counts{};
  for (unsigned int seed = 0; seed < count && !testing::Test::HasFailure(); ++seed) {
    std::mt19937 random(seed);
    const std::string text = spoil(document, random);
    const std::string path = folder.Write("spoilt.qdf", text);
    EXPECT_EQ(Disagreement(path, folder.Path("written.qdf")), "") << "seed " << seed << "\n"
                                                                  << text;
    const check::Examination examination = check::Examine(path);
    const bool warned = Finds(examination, check::Severity::kWarning);
    ++counts.at(Finds(examination, check::Severity::kError) ? 2 : warned ? 1 : 0);
    std::remove(path.c_str());  // some disks take their time to replace a file
  }
  for (std::size_t i = 0; i < counts.size(); ++i) EXPECT_GE(counts.at(i), least.at(i)) << i;
}

TEST(Agreement, OfMutatedDocuments) {
  ExpectAgreement(ReadCodeTables().document, Mutated, 2000, {200, 1000, 50});
  for (const std::string name : {"dyesub6.qdf", "plot36.qdf"}) {
    ExpectAgreement(ReadFile(QDF_EXAMPLES "/OutputDrivers/" + name), Mutated, 100, {});
  }
}

TEST(Agreement, OfGarbledDocuments) {
  ExpectAgreement(ReadCodeTables().document, Garbled, 5000, {80, 400, 1000});
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
  ExpectAgreement(document, Mutated, 1500, {150, 0, 0});
}

}  // namespace
