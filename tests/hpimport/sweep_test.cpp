// Which media folders a sweep takes for unsound and deletes.

#include "qdf/hpimport/sweep.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qdf/hpimport/removefolder.h"
#include "qdf/hpimport/sweepverdict.h"
#include "tests/hpimport/resources.h"

namespace {

namespace fs = std::filesystem;

// Makes files and, of names that end in "/", folders. A name may have "=" and a release behind it.
void Make(const TempFolder& folder, const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const std::size_t equals = name.find('=');
    if (name.back() == '/') {
      fs::create_directories(folder.Path(name));
    } else if (equals == std::string::npos) {
      folder.Write(name, "");
    } else {
      folder.Write(name.substr(0, equals),
                   Join({"<r release='", name.substr(equals + 1), "'/>"}, ""));
    }
  }
}

void Sweep(const std::string& folder) {
  AFilePath path(folder.c_str());
  PMCheckHPXMLVersion(path);
}

TEST(Sweep, ExaminesAMediaFolderToItsFirstFault) {
  const struct {
    std::vector<std::string> files;
    FolderFault fault;
    std::string path;  // that gave it, below the folder
  } rows[] = {
      {{"M/q/M_q.xml=2.0"}, FolderFault::None, ""},
      {{"M/q/m_Q.XML=2.99", "M/q/other", "M/q/x.xml=1", "M/r/M_r.xml=2"}, FolderFault::None, ""},
      {{"M/q/", "M/r/M_r.xml=2"}, FolderFault::Empty, "M/q"},
      {{"M/q/sub/x", "M/q/M_q.xml=2"}, FolderFault::FolderInQuality, "M/q/sub"},
      {{"M/q/M_q.xml=2", "M/.hidden"}, FolderFault::FileInMedia, "M/.hidden"},
      {{"M/q/q_M.xml=2", "M/r/M_r.xml=2"}, FolderFault::NoResource, "M/q"},
      {{"M/q/M_q.xml"}, FolderFault::NotXML, "M/q/M_q.xml"},
      {{"M/q/M_q.xml=3.0"}, FolderFault::WrongRelease, "M/q/M_q.xml"},
      {{"M/q/M_q.xml=1.99"}, FolderFault::WrongRelease, "M/q/M_q.xml"},
      {{"M/q/M_q.xml=nan"}, FolderFault::WrongRelease, "M/q/M_q.xml"},
      {{"M/q/M_q.xml=2", "M/q/M_q.XML=1"}, FolderFault::WrongRelease, "M/q/M_q.XML"},
      {{"M"}, FolderFault::Unsearchable, "M"},
  };
  for (const auto& row : rows) {
    const TempFolder folder;
    Make(folder, row.files);
    const AString media = folder.Path("M").c_str();
    const FolderVerdict verdict = ExamineHPFolder(media, 1);
    EXPECT_EQ(verdict.fault, row.fault) << row.files[0];
    EXPECT_EQ(verdict.path, row.path.empty() ? "" : folder.Path(row.path).c_str());
    EXPECT_EQ(CheckHPFolder(media, 1), row.fault == FolderFault::None ? 0 : 1);
  }
}

TEST(Sweep, DeletesUnsoundMediaFoldersAndNeverThroughALink) {
  const TempFolder outside;
  Make(outside, {"Mine/q/Mine_q.xml=1", "Linked/q/Linked_q.xml=2"});
  const TempFolder folder;
  Make(folder, {"M/q/", "N/", "O/", "P/q/P_q.xml=2", "P/r/P_r.xml=1", "file", "Output_ICC/p.icc"});
  fs::create_directory_symlink(outside.Path("Mine"), folder.Path("top"));
  fs::create_symlink(outside.Path("Linked/q/Linked_q.xml"), folder.Path("M/q/M_q.xml"));
  fs::create_directory_symlink(outside.Path("Linked/q"), folder.Path("N/q"));
  fs::create_directory_symlink("..", folder.Path("O/loop"));
  RemoveFolderTree((folder.Path("top") + "/").c_str());
  Sweep(folder.Path() + "/");
  EXPECT_TRUE(fs::exists(outside.Path("Mine/q/Mine_q.xml")));
  EXPECT_TRUE(fs::exists(outside.Path("Linked/q/Linked_q.xml")));
  std::vector<std::string> left;
  for (const auto& entry : fs::directory_iterator(folder.Path())) {
    left.push_back(entry.path().filename());
  }
  EXPECT_THAT(left, testing::UnorderedElementsAre("top", "file", "Output_ICC"));
  // The swept folder itself may be reached through a link.
  fs::create_directory_symlink(outside.Path(), folder.Path("link"));
  Sweep(folder.Path("link"));
  EXPECT_FALSE(fs::exists(outside.Path("Mine")));
  EXPECT_TRUE(fs::exists(outside.Path("Linked")));
  Sweep(folder.Path("missing"));
  Sweep("");
}

}  // namespace
