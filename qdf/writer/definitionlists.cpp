// The lists of plain records: one procedure, and for each list the names of its elements and how
// each is added.

#include <initializer_list>

#include "qdf/support/numbers.h"
#include "qdf/writer/recordlist.h"

namespace {

template <class Record>
struct Field {
  const char* element;
  void (*add)(const Element& item, const char* element, const Record& record);
};

template <auto Member, class Record>
void Int(const Element& item, const char* element, const Record& record) {
  item.AddInt(element, record.*Member);
}

template <auto Member, class Record>
void Name(const Element& item, const char* element, const Record& record) {
  item.AddName(element, record.*Member);
}

void MarginNumbers(const Element& item, const char* element, const MarginInfo& margin) {
  item.AddText(element, AString().Format("%lf %lf %lf %lf", margin.FirstMargin, margin.SecondMargin,
                                         margin.ThirdMargin, margin.FourthMargin));
}

void SizeNumbers(const Element& item, const char* element, const MediaSizeInfo& size) {
  item.AddText(element, AString().Format("%lf,%lf", size.FirstDimension, size.SecondDimension));
}

// The numbers are compared before they lose their fractions, so there may be two equal ones.
void ResolutionNumbers(const Element& item, const char* element, const ResolutionInfo& resolution) {
  const int x = TruncateToInt(resolution.XResolution);
  const int y = TruncateToInt(resolution.YResolution);
  const bool one = resolution.XResolution == resolution.YResolution;
  item.AddText(element, one ? AString().Format("%d", x) : AString().Format("%dx%d", x, y));
}

template <class Record>
void WriteList(APMQDF& document, const Element& definition, const char* listName,
               const char* itemName, int (APMQDF::*query)(std::vector<Record>&),
               std::initializer_list<Field<Record>> fields) {
  WriteRecords(document, definition, listName, itemName, query,
               [&](const Element& item, const Record& record) {
                 for (const Field<Record>& field : fields) {
                   field.add(item, field.element, record);
                 }
               });
}

}  // namespace

void APMQDF::PMWriteMediaSourceDef(AXMLTree& tree, const AXMLTreeNode& definition) {
  using Info = MediaSourceInfo;
  WriteList<Info>(*this, {tree, definition}, "MediaSourceList", "MediaSourceDef",
                  &APMQDF::GetFullMediaSourceInfoList,
                  {{"ID", Int<&Info::ID>},
                   {"InternalName", Name<&Info::InternalName>},
                   {"DisplayName", Name<&Info::DisplayName>}});
}

void APMQDF::PMWriteMarginInfoDef(AXMLTree& tree, const AXMLTreeNode& definition) {
  using Info = MarginInfo;
  WriteList<Info>(*this, {tree, definition}, "MarginInfoList", "MarginInfoDef",
                  &APMQDF::GetFullMarginInfoList,
                  {{"ID", Int<&Info::ID>},
                   {"InternalName", Name<&Info::InternalName>},
                   {"DisplayName", Name<&Info::DisplayName>},
                   {"Size", MarginNumbers}});
}

void APMQDF::PMWriteMediaSizeDef(AXMLTree& tree, const AXMLTreeNode& definition) {
  using Info = MediaSizeInfo;
  WriteList<Info>(*this, {tree, definition}, "MediaSizeList", "MediaSizeDef",
                  &APMQDF::GetFullMediaSizeInfoList,
                  {{"ID", Int<&Info::ID>},
                   {"PCLid", Int<&Info::PCLid>},
                   {"IsRoll", Int<&Info::IsRoll>},
                   {"InternalName", Name<&Info::InternalName>},
                   {"DisplayName", Name<&Info::DisplayName>},
                   {"Size", SizeNumbers}});
}

void APMQDF::PMWriteInkTypeDef(AXMLTree& tree, const AXMLTreeNode& definition) {
  using Info = InkTypeInfo;
  WriteList<Info>(*this, {tree, definition}, "InkList", "InkDef", &APMQDF::GetFullInkTypeList,
                  {{"ID", Int<&Info::ID>},
                   {"InternalName", Name<&Info::InternalName>},
                   {"DisplayName", Name<&Info::DisplayName>}});
}

// A medium keeps the name that it was read with: a translated one would change its place in the
// sorted list.
void APMQDF::PMWriteMediaTypeDef(AXMLTree& tree, const AXMLTreeNode& definition) {
  using Info = MediaTypeInfo;
  WriteList<Info>(*this, {tree, definition}, "MediaList", "MediaDef", &APMQDF::GetFullMediaTypeList,
                  {{"ID", Int<&Info::ID>},
                   {"InternalName", Name<&Info::InternalName>},
                   {"DisplayName", Name<&Info::UnlocalizedName>},
                   {"IsCustomizableMedia", Int<&Info::IsCustomizableMedia>}});
}

void APMQDF::PMWritePrintModeTypeDef(AXMLTree& tree, const AXMLTreeNode& definition) {
  using Info = PrintModeInfo;
  WriteList<Info>(*this, {tree, definition}, "PrintModeList", "PrintModeDef",
                  &APMQDF::GetFullPrintModeList,
                  {{"ID", Int<&Info::ID>},
                   {"InternalName", Name<&Info::InternalName>},
                   {"DisplayName", Name<&Info::DisplayName>}});
}

void APMQDF::PMWriteResolutionTypeDef(AXMLTree& tree, const AXMLTreeNode& definition) {
  using Info = ResolutionInfo;
  WriteList<Info>(*this, {tree, definition}, "ResolutionList", "ResolutionDef",
                  &APMQDF::GetFullResolutionList,
                  {{"ID", Int<&Info::ID>},
                   {"Value", ResolutionNumbers},
                   {"DisplayName", Name<&Info::DisplayName>}});
}
