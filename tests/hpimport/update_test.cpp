// What an update keeps of the previous document, and when it writes nothing.

#include "qdf/hpimport/update.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "qdf/hpimport/updateddocument.h"
#include "qdf/support/filestatus.h"
#include "qdf/support/lackofmeans.h"
#include "tests/children.h"
#include "tests/hpimport/derived.h"
#include "tests/hpimport/resources.h"

namespace {

namespace fs = std::filesystem;

// A folder with the document of a printer under OutputDrivers, in which the process works.
class Update : public testing::Test {
 protected:
  static constexpr const char* kDocument = "OutputDrivers/plot36.qdf";
  const TempFolder folder_;
  const WorkingFolder in_{folder_.Path()};
  const std::string former_ = ReadFile(QDF_EXAMPLES "/OutputDrivers/plot36.qdf");

  Update() { folder_.Write(kDocument, former_); }

  void AddResource(const Resource& resource) const { WriteResource(folder_, "tree", resource); }
};

void UpdateFile(const char* document) { PMUpdateQDF(AFilePath(document), AFilePath("tree")); }

TEST_F(Update, GivesADocumentOfResourcesAndWhatTheyDontHold) {
  AddResource({.media = "Bond", .displayNames = {"Bond"}, .profile = "b.icc"});
  AddResource({.media = "New", .displayNames = {"New &amp; old"}, .black = 4, .algorithm = 7});
  const auto previous = LoadFile(kDocument);
  const DocumentMembers before(*previous);
  UpdateFile(kDocument);
  const auto updated = LoadFile(kDocument);
  ASSERT_NE(updated, nullptr);
  const DocumentMembers after(*updated);
  EXPECT_EQ(updated->GetProdcutType(), "plot36");
  EXPECT_EQ(IDs(Records<MediaSizeInfo>(after.MediaSizeList)),
            IDs(Records<MediaSizeInfo>(before.MediaSizeList)));
  EXPECT_EQ(DumpMedia(after.MediaList), "2=Bond/Bond;3=New/New & old");
  EXPECT_EQ(Dump(after.ControlTreeRoot),
            "[1>1[2>1[1[1[1,2[0;0>-1;]]]];3>1[1[1[1,3>1[1>1;1>-1;]]]]]]");
  EXPECT_EQ(
      Join({Dump(after.ICCProfileList), Dump(after.OEMInfoList), Dump(after.DitherNameList)}, " "),
      "b.icc|p.icc Bond_best.xml|New_best.xml 101|107");
  // A name that was translated in memory plays no part.
  SetField(static_cast<MediaTypeInfo*>(before.MediaList[0])->DisplayName, "Papier");
  const UpdatedDocument again = DeriveUpdatedDocument(previous.get(), AFilePath("tree"));
  ASSERT_NE(again.document, nullptr);
  EXPECT_EQ(DumpMedia(DocumentMembers(*again.document).MediaList), DumpMedia(after.MediaList));
}

// The documents of real printers, with the resources of the same printers.
TEST_F(Update, HasNothingToDoASecondTime) {
  for (const std::string printer : {"plot36", "dyesub6"}) {
    const std::string document = "OutputDrivers/" + printer + ".qdf";
    const std::string former = ReadFile(QDF_EXAMPLES "/" + document);
    const AFilePath tree((QDF_EXAMPLES "/resources/" + printer).c_str());
    folder_.Write(document, former);
    PMUpdateQDF(AFilePath(document.c_str()), tree);
    const std::string updated = ReadFile(document);
    EXPECT_NE(updated, former) << printer;
    PMUpdateQDF(AFilePath(document.c_str()), tree);
    EXPECT_EQ(ReadFile(document), updated) << printer;
  }
}

TEST_F(Update, TouchesNothingWithoutAWholeDocument) {
  AddResource({.format = "RGB"});
  UpdateFile(kDocument);
  EXPECT_EQ(ReadFile(kDocument), former_);
  const AFilePath tree("tree");
  APMQDF empty;
  EXPECT_EQ(DeriveUpdatedDocument(&empty, tree).fault, UpdateFault::NoInk);
  EXPECT_EQ(DeriveUpdatedDocument(nullptr, tree).fault, UpdateFault::NoPreviousDocument);
}

// Resources that could not be looked for are not taken for gone.
TEST_F(Update, FailsAsAWholeWhenDescriptorsRunOut) {
  AddResource({});
  const auto previous = LoadFile(kDocument);
  // Once with all that there are: a sanitizer needs some to learn the types that it sees.
  ASSERT_NE(DeriveUpdatedDocument(previous.get(), AFilePath("tree")).document, nullptr);
  ASSERT_STREQ(LackOfMeans("known").what(), "known");
  const auto faultWithDescriptors = [&](unsigned int count) {
    return InChild([&] {
      const int next = dup(STDERR_FILENO);
      close(next);
      const rlimit few{static_cast<rlim_t>(next) + count, static_cast<rlim_t>(next) + count};
      setrlimit(RLIMIT_NOFILE, &few);
      try {
        return static_cast<int>(DeriveUpdatedDocument(previous.get(), AFilePath("tree")).fault);
      } catch (const LackOfMeans&) {
        return 100;
      }
    });
  };
  for (unsigned int count = 0; count < 3; ++count) {
    EXPECT_EQ(faultWithDescriptors(count), 100) << count;
  }
  EXPECT_EQ(faultWithDescriptors(3), static_cast<int>(UpdateFault::None));
}

TEST_F(Update, LeavesAReadOnlyFileAsReadOnlyAndAsOldAsItWas) {
  const FileStatus former{0464, {1000, 5}, {2000, 7}};
  const auto isAsOld = [&] {
    FileStatus status{};
    ReadFileStatus(kDocument, status);
    return status.modified.tv_sec == 2000 && status.modified.tv_nsec == 7;
  };
  AddResource({});
  ASSERT_TRUE(WriteFileStatus(kDocument, former));
  EXPECT_EQ(InChild([&] {
              LimitFileSizes(100);
              UpdateFile(kDocument);
              return isAsOld() ? 0 : 1;
            }),
            0);
  EXPECT_EQ(ReadFile(kDocument), former_);
  ASSERT_TRUE(WriteFileStatus(kDocument, former));
  UpdateFile(kDocument);
  EXPECT_TRUE(isAsOld());
  EXPECT_EQ(fs::status(kDocument).permissions(), fs::perms{0464});
  EXPECT_NE(ReadFile(kDocument), former_);
  ASSERT_TRUE(WriteFileStatus(kDocument, {0600, former.accessed, former.modified}));
  UpdateFile(kDocument);
  EXPECT_FALSE(isAsOld()) << "a file that its owner may write gets a new time";
}

TEST(InitiateAPMQDF, TakesDeepCopies) {
  auto previous = Load({.MediaSourceList = Entries("2=Tray"),
                        .MediaSizeList = Entries("3=A4"),
                        .MarginInfoList = Entries("4=m"),
                        .SourceControl = SourceControl(">2[2>3[3[4>4]]]")});
  APMQDF document;
  DocumentMembers former(*previous);
  EXPECT_EQ(document.InitiateAPMQDF("a", "b", "c", 1, 2, 3, 4, 5, 6, 7, 8, former.MediaSourceList,
                                    former.MediaSizeList, former.MarginInfoList,
                                    previous->GetMediaSourceTreeRoot()),
            1);
  previous.reset();
  const DocumentMembers members(document);
  EXPECT_EQ(Dump(members.MediaSourceTreeRoot), ">2[2>3[3[4>4]]]");
  EXPECT_EQ(Str(Records<MediaSourceInfo>(members.MediaSourceList)[0].DisplayName), "Tray");
  EXPECT_EQ(Str(Records<MediaSizeInfo>(members.MediaSizeList)[0].DisplayName), "A4");
  EXPECT_EQ(IDs(Records<MarginInfo>(members.MarginInfoList)), "4");
  std::vector<double> n(8);
  document.GetMediaSizeLimits(n[0], n[1], n[2], n[3]);
  document.GetMinimumMargin(n[4], n[5], n[6], n[7]);
  EXPECT_EQ(n, (std::vector<double>{1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(
      document.GetProdcutType() + document.GetTranslationTable() + document.GetCustomMediaFile(),
      "abc");
  APtrArray none;
  EXPECT_EQ(document.InitiateAPMQDF("", "", "", 1, 2, 3, 4, 5, 6, 7, 8, none, none, none, nullptr),
            1);
}

}  // namespace
