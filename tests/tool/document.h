#pragma once

// A small document with all that the commands have to tell apart: no two numbers are the same, one
// name belongs to two media, and one medium's name is another one's id.

#include "tests/documents.h"
#include "tests/tool/run.h"

const std::string kSmallDocument =
    DocumentText{
        .InkList = Entries("1=Photo Black/ph;2=Matte Black/mt;3=Unused/un"),
        .MediaList = Entries("10=Plain/pl;11=Glossy/gl;12=10/PL") +
                     Entries("13=Glossy/gl2", "<IsCustomizableMedia>7</IsCustomizableMedia>"),
        .PrintModeList = Entries("20=Draft/dr;21=Best/be"),
        .ResolutionList = Entries("30=300 dpi", "<Value>300</Value>") +
                          Entries("31=fine", "<Value>600x1200</Value>"),
        .ColorModeList = Entries("40=Colour/cmyk", R"(<ColorantList>
    <X Shape="Round" Frequency="60" Angle="0.1"><DisplayName>Cyan</DisplayName>
      <InternalName>C</InternalName><ColorDepth>2</ColorDepth></X>
    <X IsSpotColor="1" IsPrint="0"><DisplayName>Gold</DisplayName></X>
  </ColorantList>)") + Entries("41=Grey", "<ColorantList><X/></ColorantList>"),
        .MediaSourceList = Entries("50=Roll/ro;51=Tray/tr"),
        .MediaSizeList =
            Entries("60=A4", "<PCLid>8</PCLid><IsRoll>9</IsRoll><Size>595,842</Size>") +
            Entries("61=A3"),
        .MarginInfoList = Entries("70=narrow", "<Size>1 2 3 4</Size>") + Entries("71=wide"),
        .Definition = R"(
<ProductType>small</ProductType><TranslationTable>small.txt</TranslationTable>
<CustomMediaFile>small_custom.txt</CustomMediaFile>
<MinAndMaxMediaSize>10,20,30,40</MinAndMaxMediaSize><MinMarginSize>5,6,7,8</MinMarginSize>)",
        .Control = R"(
<Control_Definition DefaultInk="1">
  <Ink ID="1" DefaultMedia="11"><Media ID="10,11,12" DefaultPrintMode="21">
    <PrintMode ID="20,21" DefaultResolution="30"><Resolution ID="30,31" DefaultColorMode="99">
      <ColorMode ID="40,41" DefaultICCProfile="b.icc" DefaultDither="Smooth">
        <PrinterSpecificSetting>Quality=1</PrinterSpecificSetting>
        <ICCProfile>a.icc</ICCProfile><ICCProfile>b.icc</ICCProfile>
        <DitherList SupportAll="0"><Dither Name="Fine" RipResolution="300x600"/>
          <Dither Name="Coarse"/></DitherList>
      </ColorMode></Resolution></PrintMode></Media></Ink>
  <Ink ID="2"><Media ID="10"/></Ink>
  <Ink ID="2"><Media ID="13"><PrintMode ID="20"><Resolution ID="31"><ColorMode ID="41">
    <DitherList SupportAll="1"><Dither Name="Any" RipResolution="72x73"/></DitherList>
  </ColorMode></Resolution></PrintMode></Media></Ink>
</Control_Definition>)",
        .SourceControl = R"(
<MediaSource_Control DefaultMediaSourceID="51">
  <MediaSource ID="50" DefaultMediaSizeID="61"><MediaSize ID="60,61" MarginIDList="70,71"
    DefaultMarginID="71"/></MediaSource>
  <MediaSource ID="51"><MediaSize ID="60"/></MediaSource>
</MediaSource_Control>)",
    }
        .Text();

// The program is run where it stands as small.qdf.
class SmallDocumentTest : public QdfTest {
 protected:
  SmallDocumentTest() { folder_.Write("small.qdf", kSmallDocument); }
};
