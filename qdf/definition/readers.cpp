#include "qdf/definition/readers.h"

#include <memory>

#include "qdf/definition/entryvalues.h"
#include "qdf/definition/mediasort.h"
#include "qdf/definition/records.h"
#include "qdf/definition/resolutionvalue.h"
#include "qdf/support/idset.h"
#include "qdf/support/ownership.h"

namespace {

// Each ReadEntry fills one cleared record and answers whether the entry makes one.

template <class Record>
void ReadIDAndNames(const Entry& entry, Record& record) {
  entry.Read("ID", record.ID);
  entry.Read("InternalName", record.InternalName);
  entry.Read("DisplayName", record.DisplayName);
}

bool ReadEntry(const Entry& entry, InkTypeInfo& ink) {
  ReadIDAndNames(entry, ink);
  return true;
}

bool ReadEntry(const Entry& entry, MediaTypeInfo& media) {
  ReadIDAndNames(entry, media);
  entry.Read("IsCustomizableMedia", media.IsCustomizableMedia);
  SetField(media.UnlocalizedName, FieldText(media.DisplayName));
  return true;
}

bool ReadEntry(const Entry& entry, PrintModeInfo& printMode) {
  ReadIDAndNames(entry, printMode);
  SetField(printMode.UnlocalizedName, FieldText(printMode.DisplayName));
  return true;
}

bool ReadEntry(const Entry& entry, ResolutionInfo& resolution) {
  entry.Read("ID", resolution.ID);
  entry.Read("DisplayName", resolution.DisplayName);
  AString value;
  if (entry.Find("Value", value)) {
    ReadResolutionValue(View(value), resolution.XResolution, resolution.YResolution);
  }
  return true;
}

bool ReadEntry(const Entry& entry, MediaSizeInfo& size) {
  ReadIDAndNames(entry, size);
  entry.Read("PCLid", size.PCLid);
  entry.Read("IsRoll", size.IsRoll);
  entry.Read("Size", std::array{&size.FirstDimension, &size.SecondDimension});
  return true;
}

bool ReadEntry(const Entry& entry, MarginInfo& margin) {
  ReadIDAndNames(entry, margin);
  entry.Read("Size", std::array{&margin.FirstMargin, &margin.SecondMargin,  //
                                &margin.ThirdMargin, &margin.FourthMargin});
  return true;
}

bool ReadEntry(const Entry& entry, MediaSourceInfo& source) {
  ReadIDAndNames(entry, source);
  return true;
}

// An attribute that is empty counts as missing.
const char* GivenAttribute(const Entry& entry, const char* name) {
  const char* text = entry.tree.attributeText(entry.element, name);
  return *text != '\0' ? text : nullptr;
}

void ReadColorant(const Entry& entry, ANewColorOpt& option) {
  entry.Read("ColorDepth", option.Colorant.ColorDepth);
  entry.Read("DisplayName", option.Colorant.DisplayName);
  entry.Read("InternalName", option.Colorant.InternalName);
  const auto given = [&](const char* name) { return GivenAttribute(entry, name); };
  if (const char* text = given("IsSpotColor")) option.Colorant.IsSpotColor = ReadInt(text);
  if (const char* text = given("IsPrint")) option.Colorant.IsPrint = ReadInt(text);
  if (const char* text = given("Shape")) SetField(option.Shape, text);
  if (const char* text = given("Frequency")) option.Frequency = NarrowToFloat(ReadDouble(text));
  if (const char* text = given("Angle")) {
    option.Setting5 = ReadDouble(text);
    option.Angle = NarrowToFloat(option.Setting5);
  }
}

bool ReadEntry(const Entry& entry, ColorModeInfo& colorMode) {
  ReadIDAndNames(entry, colorMode);
  AXMLTreeNode colorants;
  if (entry.tree.getChild("ColorantList", entry.element, colorants) == 0) return false;
  const int count = entry.tree.getChildCount(colorants);
  if (count == 0) return false;
  colorMode.Colorants = new ANewColorOpt[static_cast<std::size_t>(count)];
  colorMode.ColorantCount = count;
  for (int i = 0; i < count; ++i) {
    AXMLTreeNode colorant;
    if (entry.tree.getChild(i, colorants, colorant) == 0) continue;
    ReadColorant({entry.tree, colorant}, colorMode.Colorants[i]);
  }
  return true;
}

template <class Record>
std::uint32_t IDOf(const Record& record) {
  return static_cast<std::uint32_t>(record.ID);
}

template <class Record>
void ReadEntries(AXMLTree& tree, const AXMLTreeNode& section, APtrArray& list) {
  IDSet known;
  for (int i = 0; i < list.GetSize(); ++i) known.Add(IDOf(*static_cast<Record*>(list.GetAt(i))));
  const int count = tree.getChildCount(section);
  for (int i = 0; i < count; ++i) {
    Entry entry{tree, {}};
    if (tree.getChild(i, section, entry.element) == 0) continue;
    auto record = std::make_unique<Record>();
    if (!ReadEntry(entry, *record) || !known.Add(IDOf(*record))) continue;
    AddOwned(list, std::move(record));
  }
}

template <class Record>
int ReadList(AXMLTree* tree, APtrArray& list, const char* sectionName) {
  if (tree == nullptr) return 0;
  AXMLTreeNode section;
  if (FindInDefinition(tree, sectionName, section) != 0) ReadEntries<Record>(*tree, section, list);
  return list.GetSize() > 0 ? 1 : 0;
}

}  // namespace

int FindInDefinition(AXMLTree* tree, const char* name, AXMLTreeNode& child) {
  AXMLTreeNode definition;
  if (tree == nullptr || tree->getItem("Definition", definition) == 0) return 0;
  return tree->getChild(name, definition, child);
}

int ReadInkList(AXMLTree* tree, APtrArray& list) {
  return ReadList<InkTypeInfo>(tree, list, "InkList");
}

int ReadMediaList(AXMLTree* tree, APtrArray& list) {
  const int result = ReadList<MediaTypeInfo>(tree, list, "MediaList");
  if (tree != nullptr) SortMedia(list);
  return result;
}

int ReadPrintModeList(AXMLTree* tree, APtrArray& list) {
  return ReadList<PrintModeInfo>(tree, list, "PrintModeList");
}

int ReadResolutionList(AXMLTree* tree, APtrArray& list) {
  return ReadList<ResolutionInfo>(tree, list, "ResolutionList");
}

int ReadColorModeList(AXMLTree* tree, APtrArray& list) {
  return ReadList<ColorModeInfo>(tree, list, "ColorModeList");
}

int ReadMediaSizeList(AXMLTree* tree, APtrArray& list) {
  return ReadList<MediaSizeInfo>(tree, list, "MediaSizeList");
}

int ReadMarginInfoList(AXMLTree* tree, APtrArray& list) {
  return ReadList<MarginInfo>(tree, list, "MarginInfoList");
}

int ReadMediaSourceList(AXMLTree* tree, APtrArray& list) {
  return ReadList<MediaSourceInfo>(tree, list, "MediaSourceList");
}
