// Files with unusual names and places, and files that change while they are read.

#include "qdf/support/filebytes.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>
#include <string>

#include "qdf/localise/custommedia.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

// Loads the document by its name, writes it in its place, loads it again.
bool LoadsAndWrites(const std::string& name) {
  APMQDF* document = nullptr;
  PMGetQDFInterfaceFromName(name.c_str(), &document);
  if (document == nullptr) return false;
  AFilePath path("OutputDrivers");
  path += name.c_str();
  document->PMWriteQDF(path);
  delete document;
  PMGetQDFInterfaceFromName(name.c_str(), &document);
  const bool again = document != nullptr;
  delete document;
  return again && ReadFile(static_cast<const char*>(path)).find("<?xml") == 0;
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

}  // namespace
