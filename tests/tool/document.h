#pragma once

// A small document with all that the commands have to tell apart: no two numbers are the same, one
// name belongs to two media, and one medium's name is another one's id.

#include "tests/tool/run.h"

constexpr const char* kSmallDocument = R"(<QDF_Info><Definition>
<ProductType>small</ProductType><TranslationTable>small.txt</TranslationTable>
<InkList>
  <I><ID>1</ID><InternalName>ph</InternalName><DisplayName>Photo Black</DisplayName></I>
  <I><ID>2</ID><InternalName>mt</InternalName><DisplayName>Matte Black</DisplayName></I>
  <I><ID>3</ID><InternalName>un</InternalName><DisplayName>Unused</DisplayName></I>
</InkList>
<MediaList>
  <M><ID>10</ID><InternalName>pl</InternalName><DisplayName>Plain</DisplayName></M>
  <M><ID>11</ID><InternalName>gl</InternalName><DisplayName>Glossy</DisplayName></M>
  <M><ID>12</ID><InternalName>PL</InternalName><DisplayName>10</DisplayName></M>
  <M><ID>13</ID><InternalName>gl2</InternalName><DisplayName>Glossy</DisplayName>
     <IsCustomizableMedia>7</IsCustomizableMedia></M>
</MediaList>
<PrintModeList>
  <P><ID>20</ID><InternalName>dr</InternalName><DisplayName>Draft</DisplayName></P>
  <P><ID>21</ID><InternalName>be</InternalName><DisplayName>Best</DisplayName></P>
</PrintModeList>
<ResolutionList>
  <R><ID>30</ID><DisplayName>300 dpi</DisplayName><Value>300</Value></R>
  <R><ID>31</ID><DisplayName>fine</DisplayName><Value>600x1200</Value></R>
</ResolutionList>
<ColorModeList>
  <C><ID>40</ID><InternalName>cmyk</InternalName><DisplayName>Colour</DisplayName><ColorantList>
    <X Shape="Round" Frequency="60" Angle="0.1"><DisplayName>Cyan</DisplayName>
      <InternalName>C</InternalName><ColorDepth>2</ColorDepth></X>
    <X IsSpotColor="1" IsPrint="0"><DisplayName>Gold</DisplayName></X>
  </ColorantList></C>
  <C><ID>41</ID><DisplayName>Grey</DisplayName><ColorantList><X/></ColorantList></C>
</ColorModeList>
<MediaSourceList>
  <S><ID>50</ID><InternalName>ro</InternalName><DisplayName>Roll</DisplayName></S>
  <S><ID>51</ID><InternalName>tr</InternalName><DisplayName>Tray</DisplayName></S>
</MediaSourceList>
<MediaSizeList>
  <S><ID>60</ID><PCLid>8</PCLid><IsRoll>9</IsRoll><DisplayName>A4</DisplayName>
     <Size>595,842</Size></S>
  <S><ID>61</ID><DisplayName>A3</DisplayName></S>
</MediaSizeList>
<MarginInfoList>
  <G><ID>70</ID><DisplayName>narrow</DisplayName><Size>1 2 3 4</Size></G>
  <G><ID>71</ID><DisplayName>wide</DisplayName></G>
</MarginInfoList>
<MinAndMaxMediaSize>10,20,30,40</MinAndMaxMediaSize><MinMarginSize>5,6,7,8</MinMarginSize>
<CustomMediaFile>small_custom.txt</CustomMediaFile></Definition>
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
</Control_Definition>
<MediaSource_Control DefaultMediaSourceID="51">
  <MediaSource ID="50" DefaultMediaSizeID="61"><MediaSize ID="60,61" MarginIDList="70,71"
    DefaultMarginID="71"/></MediaSource>
  <MediaSource ID="51"><MediaSize ID="60"/></MediaSource>
</MediaSource_Control>
</QDF_Info>)";

// The program is run where it stands as small.qdf.
class SmallDocumentTest : public QdfTest {
 protected:
  SmallDocumentTest() { folder_.Write("small.qdf", kSmallDocument); }
};
