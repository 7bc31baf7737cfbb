// What a write asks of the document, and through what.

#include "tests/writer/written.h"

namespace {

// A host's own document, which answers for itself.
class HostDocument : public APMQDF {
 public:
  AString GetProdcutType() override { return "Host's"; }
  AString GetCustomMediaFile() override { return "host.txt"; }
  int GetMarginInfoList(const int& mediaSource, const int& mediaSize,
                        std::vector<MarginInfo>& margins, int& /*defaultPosition*/) override {
    margins.push_back({});
    margins.back().ID = mediaSource * 10 + mediaSize;
    return 1;
  }
  int GetFullMediaTypeList(std::vector<MediaTypeInfo>& media) override {
    media.push_back({7, "", "", 0, "Own"});
    return 1;
  }
};

TEST(WriteDocument, AsksThroughTheVirtualOperations) {
  const TempFolder folder;
  const DocumentText text{.MediaSourceList = Entries("3"),
                          .MediaSizeList = Entries("4"),
                          .MarginInfoList = Entries("1"),
                          .SourceControl = SourceControl("[3[4[1]]]")};
  AFilePath path(folder.Write("document.qdf", text.Text()).c_str());
  HostDocument document;
  ASSERT_EQ(document.LoadQDFFile(path), 1);
  const std::string written = Written(document);
  EXPECT_EQ(Part(written, "ProductType"), "ProductType=Host's");
  EXPECT_EQ(Part(written, "CustomMediaFile"), "CustomMediaFile=host.txt");
  EXPECT_EQ(Part(written, "MediaSize"), "MediaSize(ID=4 MarginIDList=34)");
  EXPECT_EQ(Part(written, "MediaDef"),
            "MediaDef{ID=7 InternalName DisplayName=Own IsCustomizableMedia=0}");
}

}  // namespace
