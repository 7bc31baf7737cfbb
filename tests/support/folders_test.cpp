// Folders that are searched and walked: their order, links, lost rights, great depth, moves.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "qdf/hpimport/removefolder.h"
#include "qdf/support/directorysearch.h"
#include "qdf/support/folderwalk.h"
#include "tests/children.h"
#include "tests/files.h"

namespace {

namespace fs = std::filesystem;

TEST(Folders, AreSearchedInOneOrderEverywhere) {
  const TempFolder folder;
  for (const char* name : {"b", "B", "_", "a2", "A10", "a", "\xE4", "~", ".hidden"}) {
    folder.Write(name, "");
  }
  std::vector<DirectoryEntry> entries;
  ASSERT_TRUE(SearchFolder(folder.Path().c_str(), entries));
  std::string names;
  for (const DirectoryEntry& entry : entries) names += entry.name + " ";
  EXPECT_EQ(names, ".hidden a A10 a2 B b _ ~ \xE4 ");
  EXPECT_FALSE(SearchFolder(folder.Path("a").c_str(), entries));
  EXPECT_FALSE(SearchFolder(folder.Path("missing").c_str(), entries));
}

// Everything that a walk meets, as paths below the folder.
std::string Walked(const TempFolder& folder) {
  std::string paths;
  const std::string top = folder.Path() + "/";
  FolderWalk walk(OpenFolder(top.c_str()), top);
  while (walk.Next()) {
    EXPECT_TRUE(walk.Path().starts_with(top));
    EXPECT_TRUE(walk.Path().ends_with(walk.Entry().name));
    paths += walk.Path().substr(top.size()) + " ";
  }
  EXPECT_FALSE(walk.HasLostItsWay());
  return paths;
}

// A link leads nowhere. What one may see but not pass through is an entry like an empty folder, and
// the walk goes on.
TEST(Folders, AreWalkedWithoutLinksAndRights) {
  const TempFolder outside;
  outside.Write("secret/file", "");
  const TempFolder folder;
  for (const char* name : {"a", "b/c/file", "seen/file", "shut/file", "z"}) folder.Write(name, "");
  fs::create_directory(folder.Path("b/empty"));
  fs::create_directory_symlink(outside.Path("secret"), folder.Path("b/out"));
  fs::create_directory_symlink(folder.Path(), folder.Path("loop"));
  chmod(folder.Path("seen").c_str(), S_IRUSR | S_IRGRP | S_IROTH);
  chmod(folder.Path("shut").c_str(), 0);
  chmod(folder.Path().c_str(), 0755);
  EXPECT_EQ(InChild([&] {
              DropPrivileges();
              return Walked(folder) == "a b/c/file b/c b/empty b/out b loop seen shut z " ? 0 : 1;
            }),
            0);
  chmod(folder.Path("seen").c_str(), 0755);
  chmod(folder.Path("shut").c_str(), 0755);
}

// The path is longer than the system takes in one piece, the folders more than it lets one open.
TEST(Folders, AreRemovedAtAnyDepth) {
  const TempFolder folder;
  const auto removeAll = [&] {
    const rlimit few{32, 32};
    setrlimit(RLIMIT_NOFILE, &few);
    Descriptor here = OpenFolder(folder.Path().c_str());
    int depth = 0;
    for (; depth < 700 && mkdirat(here.Number(), "folder", 0755) == 0; ++depth) {
      here = OpenSubfolder(here, "folder");
    }
    RemoveFolderTree(folder.Path("folder").c_str());
    return depth == 700 && fs::is_empty(folder.Path()) ? 0 : 1;
  };
  EXPECT_EQ(InChild(removeAll), 0);
}

TEST(Folders, ThatMoveWhileAWalkIsInsideEndIt) {
  const TempFolder folder;
  const TempFolder outside;
  folder.Write("a/b/file", "");
  folder.Write("z", "");
  outside.Write("mine", "");
  FolderWalk walk(OpenFolder(folder.Path().c_str()), "");
  ASSERT_TRUE(walk.Next());
  EXPECT_EQ(walk.Path(), "a/b/file");
  fs::rename(folder.Path("a/b"), outside.Path("b"));
  EXPECT_FALSE(walk.Next());
  EXPECT_FALSE(walk.Next());
  EXPECT_TRUE(walk.HasLostItsWay());
}

}  // namespace
