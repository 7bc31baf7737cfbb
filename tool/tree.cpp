// qdf tree: both option trees, with names beside ids.

#include <charconv>
#include <limits>
#include <unordered_map>
#include <unordered_set>

#include "qdf/core/documentmembers.h"
#include "qdf/support/text.h"
#include "tool/command.h"
#include "tool/load.h"
#include "tool/printable.h"
#include "tool/ripresolutions.h"

namespace {

// The names of a list's records by their ids.
class Names {
 public:
  template <class Record>
  static Names Of(const APtrArray& list) {
    Names names;
    for (int i = 0; i < list.GetSize(); ++i) {
      const auto& record = *static_cast<const Record*>(list.GetAt(i));
      names.names_.emplace(record.ID, FieldText(record.DisplayName));
    }
    return names;
  }

  bool Holds(int id) const { return names_.count(id) != 0; }

  // The id with its name, which an id that isn't in the list doesn't have.
  Object Reference(int id) const {
    const auto found = names_.find(id);
    if (found == names_.end()) return {{"id", "", id}, {"name", nullptr, {}}};
    return {{"id", "", id}, {"name", "", found->second}};
  }

 private:
  std::unordered_map<int, std::string_view> names_;
};

struct Level {
  const char* key;
  const char* label;
  const char* defaultLabel;  // for a default that is an option of this level
  int defaultLevel;          // of the options that the default of a node of this level names, or -1
  Names names;
};

// Adds what stands below a node of the last level.
using AddLeaves = void (*)(const DocumentMembers& members, const CQDFNode& node, Object& object);

class TreeReport {
 public:
  TreeReport(const DocumentMembers& members, std::vector<Level> levels, int depth,
             AddLeaves addLeaves)
      : members_(members), levels_(std::move(levels)), depth_(depth), addLeaves_(addLeaves) {}

  Object Root(const CQDFNode& root) const {
    Object object;
    AddDefault(root, 0, object);
    AddChildren(root, 0, object);
    return object;
  }

 private:
  Object Node(const CQDFNode& node, int at) const {
    const Level& level = LevelAt(at);
    List options;
    for (const std::uint32_t id : node.IDs) {
      options.emplace_back(level.names.Reference(static_cast<int>(id)));
    }
    Object object{{"level", nullptr, level.key}, {"options", level.label, std::move(options)}};
    AddDefault(node, level.defaultLevel, object);
    AddChildren(node, at + 1, object);
    return object;
  }

  void AddDefault(const CQDFNode& node, int namedLevel, Object& object) const {
    if (namedLevel < 0) return;
    const Level& level = LevelAt(namedLevel);
    // 0 means no default, but for a list where an entry without an id has got it.
    const bool none = node.Default == 0 && !level.names.Holds(0);
    object.Add({"default", none ? nullptr : level.defaultLabel,
                none ? Value() : Value(level.names.Reference(node.Default))});
  }

  void AddChildren(const CQDFNode& node, int at, Object& object) const {
    const bool isBelowLevels = at == static_cast<int>(levels_.size());
    if (isBelowLevels && addLeaves_ == nullptr) return;
    if (at >= depth_) {
      object.Add({"childCount", "nodes below", node.Children.GetSize()});
    } else if (isBelowLevels) {
      addLeaves_(members_, node, object);
    } else {
      List children;
      for (int i = 0; i < node.Children.GetSize(); ++i) {
        children.emplace_back(Node(*ChildAt(node, i), at));
      }
      object.Add({kChildren, nullptr, std::move(children)});
    }
  }

  const Level& LevelAt(int at) const { return levels_[static_cast<std::size_t>(at)]; }

  const DocumentMembers& members_;
  std::vector<Level> levels_;
  int depth_;
  AddLeaves addLeaves_;
};

Value TextAt(const AStringArray& texts, int index) {
  if (index < 0 || index >= texts.GetSize()) return {};
  return static_cast<const char*>(texts.ElementAt(index));
}

struct NamesLeaf {
  const char* key;
  const char* label;
  const char* defaultKey;
  const char* defaultLabel;
};

// Adds the names of a leaf and the default among them. `describe` may say more of each. A default
// that is listed is marked there; people see it by itself only otherwise.
template <class Describe>
void AddNames(const CQDFNode& leaf, const AStringArray& texts, const NamesLeaf& words,
              Object& object, Describe describe) {
  List names;
  bool isListed = false;
  for (const std::uint32_t id : leaf.IDs) {
    const int index = static_cast<int>(id);
    if (index < 0 || index >= texts.GetSize()) continue;
    Object name{{"name", "", TextAt(texts, index)}};
    describe(static_cast<const char*>(texts.ElementAt(index)), name);
    name.Add({"default", "default", index == leaf.Default});
    isListed = isListed || index == leaf.Default;
    names.emplace_back(std::move(name));
  }
  object.Add({words.key, words.label, std::move(names)});
  Value preset = TextAt(texts, leaf.Default);
  const bool isPreset = !std::holds_alternative<std::monostate>(preset.data);
  object.Add(
      {words.defaultKey, isPreset && !isListed ? words.defaultLabel : nullptr, std::move(preset)});
}

void AddDithers(const DocumentMembers& members, const CQDFNode& ditherLeaf,
                const RipResolutions& rip, Object& object) {
  constexpr NamesLeaf kWords = {"dithers", "Dithers", "defaultDither", "Default dither"};
  std::unordered_set<std::string_view> listed;
  AddNames(ditherLeaf, members.DitherNameList, kWords, object,
           [&](const char* name, Object& dither) {
             listed.insert(name);
             const DitherResolutionInfo* found = rip.Find(name);
             const char* label = found != nullptr ? "" : nullptr;
             dither.Add({"ripResolution", label, RipResolutionValue(found)});
           });
  // A document that supports all dithers still gives some of them a RIP resolution.
  List others;
  for (const DitherResolutionInfo* record : rip.all) {
    const std::string_view name = FieldText(record->Name);
    if (listed.count(name) != 0) continue;
    others.emplace_back(
        Object{{"dither", "", name}, {"ripResolution", "", RipResolutionValue(record)}});
  }
  const char* label = others.empty() ? nullptr : "RIP resolutions of other dithers";
  object.Add({"otherRipResolutions", label, std::move(others)});
}

void AddColorModeLeaves(const DocumentMembers& members, const CQDFNode& node, Object& object) {
  constexpr NamesLeaf kProfiles = {"profiles", "Profiles", "defaultProfile", "Default profile"};
  const CQDFNode none{};
  const auto leaf = [&](int index) -> const CQDFNode& {
    return index < node.Children.GetSize() ? *ChildAt(node, index) : none;
  };
  object.Add(
      {"printerSpecificText", "Printer specific text", TextAt(members.OEMInfoList, node.Default)});
  AddNames(leaf(kProfileLeaf), members.ICCProfileList, kProfiles, object,
           [](const char*, Object&) {});
  AddDithers(members, leaf(kDitherLeaf), RipResolutionsOf(&node, members.DitherResolutionList),
             object);
}

TreeReport ControlTree(const DocumentMembers& members, int depth) {
  return {members,
          {{"ink", "Ink", "default ink", 1, Names::Of<InkTypeInfo>(members.InkList)},
           {"media", "Media", "default media", 2, Names::Of<MediaTypeInfo>(members.MediaList)},
           {"printMode", "Print mode", "default print mode", 3,
            Names::Of<PrintModeInfo>(members.PrintModeList)},
           {"resolution", "Resolution", "default resolution", 4,
            Names::Of<ResolutionInfo>(members.ResolutionList)},
           {"colorMode", "Colour mode", "default colour mode", -1,
            Names::Of<ColorModeInfo>(members.ColorModeList)}},
          depth,
          AddColorModeLeaves};
}

// The default of a media size node means nothing, and that of a margin node is one of its own.
TreeReport MediaSourceTree(const DocumentMembers& members, int depth) {
  return {
      members,
      {{"mediaSource", "Media source", "default media source", 1,
        Names::Of<MediaSourceInfo>(members.MediaSourceList)},
       {"mediaSize", "Media size", "default media size", -1,
        Names::Of<MediaSizeInfo>(members.MediaSizeList)},
       {"margin", "Margins", "default margins", 2, Names::Of<MarginInfo>(members.MarginInfoList)}},
      depth,
      nullptr};
}

int ReadDepth(const std::string* text) {
  if (text == nullptr) return std::numeric_limits<int>::max();
  int depth = 0;
  const char* end = text->data() + text->size();
  const auto [stop, error] = std::from_chars(text->data(), end, depth);
  if (error == std::errc() && stop == end && depth >= 0) return depth;
  throw Failure(kWrongUsage, "--depth takes a number from 0 on, not " + Quoted(*text));
}

Answer Tree(const Arguments& arguments) {
  const int depth = ReadDepth(arguments.Find("--depth"));
  const Document document = LoadDocument(arguments.Get("DOC"));
  const DocumentMembers members(*document.content);
  return {
      {{"document", nullptr, document.path},
       {"controlTree", "Control tree", ControlTree(members, depth).Root(members.ControlTreeRoot)},
       {"mediaSourceTree", "Media source tree",
        MediaSourceTree(members, depth).Root(members.MediaSourceTreeRoot)}}};
}

constexpr Option kOptions[] = {
    {"DOC", "", "The document", true},
    {"--depth", "N", "Go down N levels only, of six: inks are the first, dithers in the last"},
};

}  // namespace

const Command kTreeCommand = {
    "tree",
    "Show the two option trees of a document",
    "A node stands for all options on its line. Long lists are cut, but not with --json.",
    "qdf tree plot36.qdf --depth 3",
    kOptions,
    Tree,
};
