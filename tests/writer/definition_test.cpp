// The lists and the header as they are written.

#include "qdf/core/documentmembers.h"
#include "tests/writer/written.h"

namespace {

TEST(WriteDefinition, AnEmptyDocumentIsAFrame) {
  APMQDF document;
  EXPECT_EQ(Written(document),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QDF_Info>\n  <Definition>\n"
            "    <ProductType />\n    <TranslationTable />\n    <CustomMediaFile />\n"
            "    <MinAndMaxMediaSize>0.000000,0.000000,0.000000,0.000000</MinAndMaxMediaSize>\n"
            "    <MinMarginSize>0.000000,0.000000,0.000000,0.000000</MinMarginSize>\n"
            "    <MediaSourceList />\n    <MarginInfoList />\n    <MediaSizeList />\n"
            "    <InkList />\n    <MediaList />\n    <PrintModeList />\n    <ResolutionList />\n"
            "    <ColorModeList />\n  </Definition>\n</QDF_Info>\n");
}

TEST(WriteDefinition, ListsHaveTheirElementsInOrder) {
  const auto document =
      Load({.InkList = Entries("2=Photo/pk;1"),
            .MediaList = "<a><ID>3</ID><DisplayName>b</DisplayName></a><a><ID>1</ID>"
                         "<IsCustomizableMedia>2</IsCustomizableMedia></a>",
            .PrintModeList = Entries("1=Best/best"),
            .ResolutionList = Resolutions("1=600;2=720x360;3=600.5;4=600.2X600.7;5=-1.9;6=1e99;"
                                          "7=nan"),
            .ColorModeList = "<a><ID>1</ID><DisplayName>Two</DisplayName><ColorantList><c IsSpot"
                             "Color='1'><ColorDepth>8</ColorDepth><DisplayName>Red</DisplayName>"
                             "</c><c/></ColorantList></a>",
            .MediaSourceList = Entries("-4=Roll") + "<b/>",
            .MediaSizeList = Entries("2147483647=/A4",
                                     "<PCLid>-1</PCLid><IsRoll>1</IsRoll>"
                                     "<Size>8.2677165 1e20</Size>"),
            .MarginInfoList = Entries("2", "<Size>1,2.5,-3,1e3</Size>"),
            .Definition = "<ProductType> x&amp;y </ProductType><TranslationTable>t"
                          "</TranslationTable><CustomMediaFile>c</CustomMediaFile>"
                          "<MinAndMaxMediaSize>1,2.0000006,3,4</MinAndMaxMediaSize>"
                          "<MinMarginSize>1 2 3 4</MinMarginSize>",
            .Control = Control("[1,2[1,3>1[1[2,1[1]]]]]", "<ICCProfile>p</ICCProfile>")});
  const DocumentMembers members(*document);
  // Translated names are written but for media.
  SetField(static_cast<MediaTypeInfo*>(members.MediaList[0])->DisplayName, "translated");
  SetField(static_cast<PrintModeInfo*>(members.PrintModeList[0])->DisplayName, "translated");
  const char* const parts[] = {
      "ProductType= x&y ",
      "TranslationTable=t",
      "CustomMediaFile=c",
      "MinAndMaxMediaSize=1.000000,2.000001,3.000000,4.000000",
      "MinMarginSize=1.000000,2.000000,3.000000,4.000000",
      "MediaSourceList{MediaSourceDef{ID=-4 InternalName DisplayName=Roll} "
      "MediaSourceDef{ID=0 InternalName DisplayName}}",
      "MarginInfoList{MarginInfoDef{ID=2 InternalName DisplayName "
      "Size=1.000000 2.500000 -3.000000 1000.000000}}",
      "MediaSizeList{MediaSizeDef{ID=2147483647 PCLid=-1 IsRoll=1 InternalName=A4 DisplayName "
      "Size=8.267717,100000000000000000000.000000}}",
      "InkList{InkDef{ID=2 InternalName=pk DisplayName=Photo} InkDef{ID=1 InternalName "
      "DisplayName}}",
      "MediaList{MediaDef{ID=3 InternalName DisplayName=b IsCustomizableMedia=0} "
      "MediaDef{ID=1 InternalName DisplayName IsCustomizableMedia=2}}",
      "PrintModeList{PrintModeDef{ID=1 InternalName=best DisplayName=translated}}",
      "ResolutionList{ResolutionDef{ID=1 Value=600 DisplayName=600} "
      "ResolutionDef{ID=2 Value=720x360 DisplayName=720x360} "
      "ResolutionDef{ID=3 Value=600 DisplayName=600.5} "
      "ResolutionDef{ID=4 Value=600x600 DisplayName=600.2X600.7} "
      "ResolutionDef{ID=5 Value=-1 DisplayName=-1.9} "
      "ResolutionDef{ID=6 Value=2147483647 DisplayName=1e99} "
      "ResolutionDef{ID=7 Value=0x0 DisplayName=nan}}",
      "ColorModeList{ColorModeDef{ID=1 InternalName DisplayName=Two ColorantList{"
      "Color(IsSpotColor=1){InternalName DisplayName=Red ColorDepth=8} "
      "Color(IsSpotColor=0){InternalName DisplayName ColorDepth=1}}}}"};
  const std::string written = Written(*document);
  EXPECT_EQ(Part(written, "Definition"),
            "Definition{" + Join({std::begin(parts), std::end(parts)}, " ") + "}");
  const std::string second = Written(*LoadText(written));
  EXPECT_EQ(Written(*LoadText(second)), second);
}

}  // namespace
