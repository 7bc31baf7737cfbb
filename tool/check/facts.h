#pragma once

// What the reader keeps of a document, with the elements that it comes from.

#include <array>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "qdf/control/idlist.h"
#include "tool/check/xmlview.h"

namespace check {

enum ListKind {
  kInks,
  kMedia,
  kPrintModes,
  kResolutions,
  kColorModes,
  kMediaSizes,
  kMargins,
  kMediaSources,
  kListKinds
};

struct ListForm {
  const char* section;  // the name of the list's element
  const char* entry;    // what messages call an entry
  bool isMandatory;
};

const ListForm& FormOf(ListKind kind);

struct KeptEntry {
  Element element;
  int id = 0;
  std::string name;  // the display name, as far as it fits its field
};

struct KeptList {
  Element section;  // none when the document has no such list
  std::vector<KeptEntry> entries;
  std::unordered_map<int, std::size_t> byID;  // places in entries
  std::unique_ptr<const LevelIDs> ids;
};

struct Lists {
  const KeptList& operator[](ListKind kind) const { return kept[kind]; }

  std::array<KeptList, kListKinds> kept;
  bool refused = false;  // one that is mandatory has no entry: nothing else is read
};

// An element that makes a node of a tree, and the elements below it that do. Roots have no ids. The
// node of a MediaSize has one child at most, with the ids of its margins.
struct ElementNode {
  Element element;
  ADWordArray ids;
  std::vector<ElementNode> children;
};

struct Kept {
  Lists lists;
  // The roots of the two trees. One has no element when its section isn't there or isn't read.
  ElementNode control;
  ElementNode sources;
};

// The levels of Control_Definition, from the top.
struct ControlLevel {
  ListKind list;
  const char* element;
  const char* defaultAttribute;  // on the element above
};

inline constexpr std::array<ControlLevel, 5> kControlLevels = {
    {{kInks, "Ink", "DefaultInk"},
     {kMedia, "Media", "DefaultMedia"},
     {kPrintModes, "PrintMode", "DefaultPrintMode"},
     {kResolutions, "Resolution", "DefaultResolution"},
     {kColorModes, "ColorMode", "DefaultColorMode"}}};

}  // namespace check
