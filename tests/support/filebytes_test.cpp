// Files that are replaced as a whole, files with unusual names and places, and files that change
// while they are read.

#include "qdf/support/filebytes.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "qdf/localise/custommedia.h"
#include "qdf/support/savebytes.h"
#include "tests/children.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

namespace fs = std::filesystem;

std::string Bytes(std::size_t size, char fill) { return std::string(size, fill); }

TEST(SaveFileBytes, ReplacesInPlaceWhateverTheSizes) {
  const TempFolder folder;
  const std::string path = folder.Path("file");
  fs::create_symlink("file", folder.Path("link"));
  for (const std::size_t former : {0UL, 1UL, 5000UL, 100000UL}) {
    for (const std::size_t size : {0UL, 1UL, 4999UL, 5000UL, 300000UL}) {
      WriteFile(path, Bytes(former, 'f'));
      chmod(path.c_str(), 0640);
      struct stat before {};
      struct stat after {};
      stat(path.c_str(), &before);
      const std::string bytes = Bytes(size, '\0');
      EXPECT_NE(SaveFileBytes(folder.Path("link").c_str(), bytes), 0);
      EXPECT_EQ(ReadFile(path), bytes) << former << " to " << size;
      stat(path.c_str(), &after);
      EXPECT_EQ(after.st_ino, before.st_ino);
      EXPECT_EQ(after.st_mode, before.st_mode);
    }
  }
  EXPECT_TRUE(fs::is_symlink(folder.Path("link")));
}

// The limit holds for what is overwritten as well, so a save that shrinks a file meets it too.
TEST(SaveFileBytes, KeepsTheFormerFileBeyondTheSizeLimit) {
  const TempFolder folder;
  const std::string small = folder.Write("small", Bytes(10, 'f'));
  const std::string large = folder.Write("large", Bytes(90000, 'f'));
  EXPECT_EQ(InChild([&] {
              LimitFileSizes(50000);
              for (const std::string& path : {small, large, folder.Path("made")}) {
                if (SaveFileBytes(path.c_str(), Bytes(50001, 'n')) != 0) return 1;
              }
              umask(027);
              return SaveFileBytes(folder.Path("fits").c_str(), Bytes(50000, 'n')) != 0 ? 0 : 2;
            }),
            0);
  EXPECT_EQ(ReadFile(small), Bytes(10, 'f'));
  EXPECT_EQ(ReadFile(large), Bytes(90000, 'f'));
  EXPECT_FALSE(fs::exists(folder.Path("made")));
  EXPECT_EQ(ReadFile(folder.Path("fits")), Bytes(50000, 'n'));
  EXPECT_EQ(fs::status(folder.Path("fits")).permissions(), fs::perms(0640));
}

// What is overwritten may need room as well: a hole in a file takes none.
TEST(SaveFileBytes, KeepsTheFormerFileOnAFullDisk) {
  const TempFolder folder;
  const int result = InChild([&] {
    if (!MountSmallDisk(folder.Path().c_str())) return 77;
    const std::string path = folder.Write("file", "former");
    fs::resize_file(path, kSmallDisk - 4096);
    const std::string former = ReadFile(path);
    folder.Write("other", Bytes(kSmallDisk / 2, 'o'));
    for (const std::size_t size : {former.size() - 1, former.size(), 2 * former.size()}) {
      if (SaveFileBytes(path.c_str(), Bytes(size, 'n')) != 0) return 1;
      if (ReadFile(path) != former) return 2;
    }
    if (SaveFileBytes(folder.Path("made").c_str(), Bytes(kSmallDisk, 'n')) != 0) return 3;
    if (fs::exists(folder.Path("made"))) return 4;
    // What was taken by the failures is free again.
    fs::remove(folder.Path("other"));
    return SaveFileBytes(path.c_str(), Bytes(former.size(), 'n')) != 0 ? 0 : 5;
  });
  if (result == 77) GTEST_SKIP() << "this machine lets no test mount a small disk";
  EXPECT_EQ(result, 0);
}

// Loads the document by its name, writes it in its place, loads it again.
bool LoadsAndWrites(const std::string& name) {
  APMQDF* document = nullptr;
  PMGetQDFInterfaceFromName(name.c_str(), &document);
  if (document == nullptr) return false;
  AFilePath path(("OutputDrivers/" + name).c_str());
  document->PMWriteQDF(path);
  delete document;
  return LoadFile("OutputDrivers/" + name) != nullptr &&
         ReadFile("OutputDrivers/" + name).starts_with("<?xml");
}

TEST(Files, MayHaveNamesOfAnyBytes) {
  const TempFolder folder;
  const WorkingFolder in(folder.Path());
  std::string all;
  for (int c = 1; c < 256; ++c) {
    if (c != '/') all += static_cast<char>(c);
  }
  for (std::size_t at = 0; at < all.size(); at += 50) {
    const std::string name = all.substr(at, 50);
    folder.Write("OutputDrivers/" + name, DocumentText{}.Text());
    EXPECT_TRUE(LoadsAndWrites(name)) << name;
    CCustomMediaInfoInter* media = nullptr;
    PMGetCCustomMediaInfoInterFromName((name + "m").c_str(), &media);
    media->AddIccprofile("p");
    delete media;
    EXPECT_EQ(ReadFile("OutputDrivers/" + name + "m"), "key_Iccprofile=p\n") << name;
  }
}

TEST(Files, MayStandDeepDown) {
  const TempFolder folder;
  const WorkingFolder in(folder.Path());
  std::string name;
  while (name.size() < 3800) name += std::string(199, 'f') + "/";
  folder.Write("OutputDrivers/" + name + "d.qdf", DocumentText{}.Text());
  EXPECT_TRUE(LoadsAndWrites(name + "d.qdf"));
  // One character more than the system takes.
  const std::string tooLong(4096, 'f');
  FileBytes bytes;
  EXPECT_STREQ(ReadFileBytes(tooLong.c_str(), bytes), "the path is too long");
  EXPECT_FALSE(LoadsAndWrites(name + tooLong));
}

// Whatever part of it a reader sees, a document is taken whole or not at all.
TEST(Files, MayChangeWhileTheyAreRead) {
  const TempFolder folder;
  const std::string text = DocumentText{.InkList = Entries("1;2;3")}.Text();
  const std::string path = folder.Write("d.qdf", text);
  const pid_t writer = fork();
  for (int i = 0; writer == 0 && i < 100'000; ++i) WriteFile(path, text);
  if (writer == 0) _exit(0);
  for (int i = 0; i < 1000; ++i) {
    const auto document = LoadFile(path);
    if (document == nullptr) continue;
    std::vector<InkTypeInfo> inks;
    document->GetFullInkTypeList(inks);
    EXPECT_EQ(IDs(inks), "1,2,3");
  }
  kill(writer, SIGKILL);
  waitpid(writer, nullptr, 0);
}

// The system's own files tell a size that they don't have, as does a file that shrinks.
TEST(Files, MayBeShorterThanTheyTell) {
  const char* path = "/sys/kernel/mm/transparent_hugepage/enabled";
  FileBytes bytes;
  if (access(path, R_OK) != 0) GTEST_SKIP() << "there is no such file here";
  EXPECT_EQ(ReadFileBytes(path, bytes), nullptr);
  EXPECT_EQ(bytes.data[bytes.size], '\0');
  EXPECT_LT(bytes.size, 1000U);
  EXPECT_GT(bytes.size, 0U);
}

}  // namespace
