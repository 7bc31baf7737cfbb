// The nodes of option trees, and what a document answers that is filled by no or by several roads.

#include <gtest/gtest.h>

#include "qdf/core/documentmembers.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

ADWordArray Array(std::initializer_list<std::uint32_t> ids) {
  ADWordArray array;
  for (const std::uint32_t id : ids) array.Add(id);
  return array;
}

TEST(OptionTree, MergesIDsOnceAndInOrder) {
  ADWordArray none;
  ADWordArray target = Array({1, 2});
  ADWordArray source = Array({2, 3, 3, 1});
  EXPECT_EQ(IsIDInArray(0, none) + IsIDInArray(4, source), 0);
  EXPECT_EQ(IsIDInArray(3, source), 1);
  MergeIDArray(target, source);
  EXPECT_EQ(Dump(target), "1,2,3");
  MergeIDArray(source, source);
  EXPECT_EQ(Dump(source), "2,3,3,1") << "what stood there stays";

  CQDFNode parent;
  parent.Default = 7;
  AddChildNode(parent, source);
  MergeIDArray(parent, target);
  MergeIDArray(parent, *ChildAt(parent, 0));
  EXPECT_EQ(Dump(parent), "1,2,3>7[2,3,3,1]");
  parent.Children.Add(nullptr);

  // Beyond the few that are looked through one by one, with ids that are alike in their low bits.
  ADWordArray many;
  ADWordArray merged;
  for (std::uint32_t i = 0; i < 3000; ++i) many.Add(i % 1000 * 0x10000U);
  MergeIDArray(merged, many);
  many.SetSize(1000, -1);
  EXPECT_EQ(Dump(merged), Dump(many));
}

TEST(OptionTree, IsCopiedOntoWhatIsThere) {
  APMQDF document;
  CQDFNode target;
  EXPECT_FALSE(document.PMCopyMediaSourceTreeRoot(nullptr, &target));
  EXPECT_EQ(Dump(target), "");
  auto other = Load({.InkList = Entries("1;2"), .Control = Control(">2[1,2>3[1>4[1>5[1]];1]]")});
  CQDFNode& source = DocumentMembers(*other).ControlTreeRoot;
  source.IDs = Array({9, 9});
  source.Children.InsertAt(0, nullptr, 1);
  EXPECT_TRUE(document.PMCopyMediaSourceTreeRoot(&source, &target));
  EXPECT_TRUE(document.PMCopyMediaSourceTreeRoot(&source, &target));
  other.reset();
  EXPECT_EQ(Dump(target), "9,9,9,9>2[1,2>3[1>4[1>5[1]];1];1,2>3[1>4[1>5[1]];1]]");
}

TEST(Document, IsNoneWhenNothingCanBeLoaded) {
  const TempFolder folder;
  folder.Write("OutputDrivers/text.qdf", "no XML");
  folder.Write("OutputDrivers/folder.qdf/file", "");
  const WorkingFolder in(folder.Path());
  for (const char* name : {static_cast<const char*>(nullptr), "", "missing.qdf", "text.qdf",
                           "folder.qdf", "text.qdf/x"}) {
    APMQDF other;
    APMQDF* document = &other;
    PMGetQDFInterfaceFromName(name, &document);
    EXPECT_EQ(document, nullptr) << (name == nullptr ? "null" : name);
  }
}

TEST(Document, KeepsItsRecordsWhenItIsLoadedAgain) {
  const TempFolder folder;
  const auto path = [&](const char* name, const DocumentText& text) {
    return AFilePath(folder.Write(name, text.Text()).c_str());
  };
  AFilePath first = path("first", {.InkList = Entries("2=x;1=first"),
                                   .Definition = "<ProductType>a</ProductType>",
                                   .Control = Control(">2[1[1]]")});
  AFilePath more = path("more", {.InkList = Entries("1=second;3"),
                                 .MediaList = Entries("1;2"),
                                 .Control = Control("[3[2]]")});
  AFilePath broken = path("broken", {.MediaList = "", .Control = Control("[1]")});
  APMQDF document;
  std::vector<InkTypeInfo> inks;
  EXPECT_EQ(document.GetFullInkTypeList(inks), 0);
  EXPECT_EQ(document.LoadQDFFile(broken), 0);
  EXPECT_EQ(document.GetFullInkTypeList(inks), 1) << "what was read before it broke off";
  inks.clear();
  EXPECT_NE(document.LoadQDFFile(first), 0);
  EXPECT_NE(document.LoadQDFFile(more), 0);
  document.GetFullInkTypeList(inks);
  EXPECT_EQ(IDs(inks), "1,2,3");
  EXPECT_EQ(Dump(DocumentMembers(document).ControlTreeRoot), "[1[1];3[2]]");
  EXPECT_EQ(document.GetProdcutType(), "a");
}

}  // namespace
