// Each allocation of an operation fails once: it then gives its failure result, throws nothing,
// leaks nothing and leaves what it was given as it was.

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "qdf/hpimport/sweep.h"
#include "qdf/hpimport/sweepverdict.h"
#include "qdf/hpimport/update.h"
#include "qdf/localise/custommedia.h"
#include "qdf/localise/localise.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tests/hpimport/resources.h"

namespace {

constexpr long kUnlimited = -1;
long allowed = kUnlimited;  // allocations that still succeed
bool refused = false;

void* Allocate(std::size_t size) {
  if (allowed == 0) {
    refused = true;
    return nullptr;
  }
  if (allowed > 0) --allowed;
  return std::malloc(size > 0 ? size : 1);
}

void* AllocateOrThrow(std::size_t size) {
  void* memory = Allocate(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

// Runs the operation with one allocation more each time, until it needs no more than it gets.
// `check` sees each result of a run that was refused memory.
template <class Operation, class Check>
void Exhaust(const char* what, Operation operation, Check check) {
  for (long count = 0;; ++count) {
    bool thrown = false;
    allowed = count;
    refused = false;
    int result = 0;
    try {
      result = operation();
    } catch (...) {
      thrown = true;
    }
    allowed = kUnlimited;
    ASSERT_FALSE(thrown) << what << ", allocation " << count;
    if (!refused) return;
    check(result);
    ASSERT_FALSE(testing::Test::HasFailure()) << what << ", allocation " << count;
  }
}

TEST(NoMemory, LoadsGiveNothing) {
  const pugi::allocation_function allocate = pugi::get_memory_allocation_function();
  const pugi::deallocation_function release = pugi::get_memory_deallocation_function();
  pugi::set_memory_management_functions(Allocate, std::free);
  AFilePath path(QDF_EXAMPLES "/OutputDrivers/dyesub6.qdf");
  Exhaust(
      "document",
      [&] {
        APMQDF* document = nullptr;
        PMGetQDFInterface(path, &document);
        delete document;
        return document != nullptr ? 1 : 0;
      },
      [](int loaded) { EXPECT_EQ(loaded, 0); });
  AXMLTree tree("RootElement");
  Exhaust(
      "tree", [&] { return tree.loadFromFile(path, 1); },
      [&](int loaded) {
        EXPECT_EQ(loaded, 0);
        EXPECT_EQ(tree.loadFault().Reason, "out of memory");
        AXMLTreeNode root;
        EXPECT_EQ(tree.getRootNode(root), 0);
      });
  tree.removeAll(0);
  pugi::set_memory_management_functions(allocate, release);
}

// A question that is asked with an empty vector each time.
template <class Record, class Ask>
void CheckQuestion(const char* what, Ask ask) {
  std::vector<Record> records;
  Exhaust(
      what,
      [&] {
        records = {};
        return ask(records);
      },
      [&](int result) {
        EXPECT_EQ(result, 0);
        EXPECT_TRUE(records.empty());
      });
  EXPECT_FALSE(records.empty()) << what;
}

TEST(NoMemory, QuestionsGiveNothing) {
  const auto document = LoadFile(QDF_EXAMPLES "/OutputDrivers/dyesub6.qdf");
  ASSERT_NE(document, nullptr);
  int at = 0;
  AString name;
  CheckQuestion<InkTypeInfo>("inks", [&](auto& all) { return document->GetInkTypeList(all, at); });
  CheckQuestion<ColorModeInfo>(
      "colour modes", [&](auto& all) { return document->GetColorModeList(1, 1, 1, 1, all, at); });
  CheckQuestion<ColorModeInfo>("all colour modes",
                               [&](auto& all) { return document->GetFullColorModeInfoList(all); });
  CheckQuestion<MediaSizeInfo>("sizes",
                               [&](auto& all) { return document->GetMediaSizeList(1, all, at); });
  CheckQuestion<MarginInfo>("margins",
                            [&](auto& all) { return document->GetMarginInfoList(1, 1, all, at); });
  CheckQuestion<AString>(
      "profiles", [&](auto& all) { return document->GetProfileList(1, 1, 1, 1, 1, all, name); });
  CheckQuestion<AString>(
      "dithers", [&](auto& all) { return document->GetDitherList(1, 1, 1, 1, 1, all, name); });
  Exhaust(
      "copy of a tree",
      [&] {
        CQDFNode copy;
        return document->PMCopyMediaSourceTreeRoot(document->GetMediaSourceTreeRoot(), &copy) ? 1
                                                                                              : 0;
      },
      [](int copied) { EXPECT_EQ(copied, 0); });
}

// A table loses no more than the line for which there is no memory.
TEST(NoMemory, TablesAndListsOfProfilesAreReadAsFarAsTheyShould) {
  const TempFolder folder;
  const WorkingFolder in(folder.Path());
  const std::string translation(100, 't');
  folder.Write("OutputDrivers/t", "One=" + translation + "\nTwo=" + translation);
  const DocumentText text{.InkList = Entries("1=One;2=Two"),
                          .Definition = "<TranslationTable>t</TranslationTable>"};
  std::unique_ptr<APMQDF> document;
  std::set<std::string> met;
  Exhaust(
      "translation",
      [&] {
        const long count = std::exchange(allowed, kUnlimited);
        document = Load(text);
        allowed = count;
        PMLocalizeQDFByTranslationTable(document.get());
        return 0;
      },
      [&](int) {
        std::vector<InkTypeInfo> inks;
        document->GetFullInkTypeList(inks);
        met.insert(Join({Str(inks.at(0).DisplayName), Str(inks.at(1).DisplayName)}, " "));
      });
  EXPECT_EQ(met, (std::set<std::string>{"One Two", translation + " Two"}));

  folder.Write("OutputDrivers/m", "key_Iccprofile=short\nkey_Iccprofile=" + translation);
  CCustomMediaInfoInter* made = nullptr;
  PMGetCCustomMediaInfoInterFromName("m", &made);
  const std::unique_ptr<CCustomMediaInfoInter> media(made);
  AStringArray profiles;
  Exhaust(
      "profiles",
      [&] {
        profiles = {};
        return media->GetIccprofileList(profiles);
      },
      [&](int result) {
        EXPECT_EQ(result, 0);
        EXPECT_EQ(profiles.GetSize(), 0);
      });
  EXPECT_EQ(profiles.GetSize(), 2);
}

TEST(NoMemory, UpdatesWriteAllOrNothingAndSweepsDeleteNothingSound) {
  const TempFolder folder;
  const WorkingFolder in(folder.Path());
  WriteResource(folder, "tree", {});
  folder.Write("OutputDrivers/d.qdf", ReadFile(QDF_EXAMPLES "/OutputDrivers/dyesub6.qdf"));
  // Short enough to be copied without memory.
  const AFilePath document("d.qdf");
  AFilePath tree("tree");
  PMUpdateQDF(document, tree);
  const std::string whole = ReadFile("d.qdf");
  EXPECT_NE(LoadFile("d.qdf"), nullptr);
  const pugi::allocation_function allocate = pugi::get_memory_allocation_function();
  const pugi::deallocation_function release = pugi::get_memory_deallocation_function();
  pugi::set_memory_management_functions(Allocate, std::free);
  WriteFile("d.qdf", "former");
  Exhaust(
      "update",
      [&] {
        PMUpdateQDF(document, tree);
        return 0;
      },
      [&](int) {
        // A sort does without the memory that it asks for.
        const std::string bytes = ReadFile("d.qdf");
        EXPECT_TRUE(bytes == "former" || bytes == whole) << bytes.size();
        WriteFile("d.qdf", "former");
      });
  EXPECT_EQ(ReadFile("d.qdf"), whole);
  Exhaust(
      "sweep",
      [&] {
        PMCheckHPXMLVersion(tree);
        return CheckHPFolder("tree/Glossy", 1);
      },
      [](int fault) {
        EXPECT_EQ(fault, 0);
        EXPECT_NE(AFilePath("tree/Glossy/best/Glossy_best.xml").exists(), 0);
      });
  pugi::set_memory_management_functions(allocate, release);
}

}  // namespace
