#include "tool/compare/paths.h"

#include <algorithm>
#include <map>

#include "qdf/control/ditherlist.h"
#include "qdf/core/documentmembers.h"
#include "qdf/support/text.h"
#include "tool/reportline.h"

namespace {

constexpr PathLevel kJobPath[] = {
    {"ink", "Ink", kInks},
    {"media", "Media", kMedia},
    {"printMode", "Print mode", kPrintModes},
    {"resolution", "Resolution", kResolutions},
    {"colorMode", "Colour mode", kColorModes},
};

constexpr Trait kDefaultInk[] = {{"defaultInk", "Default ink"}};
constexpr Trait kDefaultMedia[] = {{"defaultMedia", "Default media"}};
constexpr Trait kDefaultPrintMode[] = {{"defaultPrintMode", "Default print mode"}};
constexpr Trait kDefaultResolution[] = {{"defaultResolution", "Default resolution"}};
constexpr Trait kDefaultColorMode[] = {{"defaultColorMode", "Default colour mode"}};
constexpr Trait kColorModeTraits[] = {
    {"offered", "Offered step by step"},
    {"printerSpecificText", "Printer specific text"},
    {"profiles", "Profiles"},
    {"defaultProfile", "Default profile"},
    {"dithers", "Dithers"},
    {"defaultDither", "Default dither"},
    {"ripResolutions", "RIP resolutions"},
};
constexpr std::span<const Trait> kJobTraits[] = {kDefaultInk,       kDefaultMedia,
                                                 kDefaultPrintMode, kDefaultResolution,
                                                 kDefaultColorMode, kColorModeTraits};

constexpr PathLevel kMediaSourcePath[] = {
    {"mediaSource", "Media source", kMediaSources},
    {"mediaSize", "Media size", kMediaSizes},
    {"margin", "Margins", kMargins},
};

constexpr Trait kDefaultSource[] = {{"defaultMediaSource", "Default media source"}};
constexpr Trait kDefaultSize[] = {{"defaultMediaSize", "Default media size"}};
constexpr Trait kDefaultMargin[] = {{"defaultMargin", "Default margins"}};
constexpr std::span<const Trait> kMediaSourceTraits[] = {
    kDefaultSource, kDefaultSize, kDefaultMargin, {}};

constexpr PathKind kKinds[] = {
    {"combinations", "Combinations", kJobPath, kJobTraits, true},
    {"mediaSourceCombinations", "Media source combinations", kMediaSourcePath, kMediaSourceTraits,
     false},
};

// The nodes for an option below those of a path, in the order of a search.
struct Below {
  std::vector<const CQDFNode*> nodes;
  bool isOffered = false;  // by the first node of the path, which decides what is listed
};

Value TextAt(const AStringArray& texts, int index) {
  if (index < 0 || index >= texts.GetSize()) return {};
  const AString& text = texts.ElementAt(index);
  return text.GetLength() > 0 ? Value(static_cast<const char*>(text)) : Value();
}

List TextsOf(const CQDFNode& leaf, const AStringArray& texts) {
  List list;
  for (const std::uint32_t id : leaf.IDs) {
    const int index = static_cast<int>(id);
    if (index >= 0 && index < texts.GetSize()) list.push_back(TextAt(texts, index));
  }
  return list;
}

List RipResolutionsOf(const CQDFNode& leaf, const APtrArray& records) {
  List list;
  for (const std::uint32_t id : leaf.IDs) {
    const int index = static_cast<int>(id);
    if (index < 0 || index >= records.GetSize()) continue;
    const auto& record = *static_cast<const DitherResolutionInfo*>(records.GetAt(index));
    list.emplace_back(std::string(FieldText(record.Name)) + ' ' + LineText(record.XResolution) +
                      'x' + LineText(record.YResolution));
  }
  return list;
}

class PathReader {
 public:
  PathReader(APMQDF& document, const PathKind& kind, const std::vector<KnownEntries>& entries,
             int most)
      : members_(document), kind_(kind), entries_(entries), left_(most) {}

  bool Read(PathNode& root) {
    const CQDFNode& tree = kind_.isJob ? members_.ControlTreeRoot : members_.MediaSourceTreeRoot;
    return Read({{&tree}, true}, 0, root);
  }

 private:
  // Fills a path that ends in any of these nodes.
  bool Read(const Below& ends, std::size_t level, PathNode& path) {
    const CQDFNode& first = *ends.nodes.front();
    auto& traits = traits_[{&first, ends.isOffered}];
    if (traits == nullptr) {
      traits = std::make_shared<Traits>(TraitsOf(first, level, ends.isOffered));
    }
    path.traits = traits;
    if (level == kind_.levels.size()) return true;
    std::map<int, Below> below;
    for (const CQDFNode* node : ends.nodes) {
      if (!Sort(*node, level, ends.isOffered && node == &first, below)) return false;
    }
    path.children.reserve(below.size());
    for (const auto& [entry, children] : below) {
      path.children.emplace_back().entry = entry;
      if (!Read(children, level + 1, path.children.back())) return false;
    }
    return true;
  }

  // Media sources are searched without going back: the first node for an option is all.
  bool Sort(const CQDFNode& node, std::size_t level, bool isOffered, std::map<int, Below>& below) {
    const bool isMargin = !kind_.isJob && level + 1 == kind_.levels.size();
    const int count = isMargin ? std::min(node.Children.GetSize(), 1) : node.Children.GetSize();
    const KnownEntries& known = entries_[kind_.levels[level].list];
    for (int i = 0; i < count; ++i) {
      const CQDFNode* child = ChildAt(node, i);
      for (const std::uint32_t id : child->IDs) {
        if (--left_ < 0) return false;
        const auto found = known.places.find(static_cast<int>(id));
        if (found == known.places.end()) continue;
        Below& option = below[found->second];
        if (option.nodes.empty()) option.isOffered = isOffered;
        if (option.nodes.empty() || kind_.isJob) option.nodes.push_back(child);
      }
    }
    return true;
  }

  Traits TraitsOf(const CQDFNode& node, std::size_t level, bool isOffered) const {
    if (kind_.isJob) {
      return level < kind_.levels.size() ? Traits{DefaultOf(node, level)}
                                         : ColorModeTraits(node, isOffered);
    }
    constexpr std::size_t kSizeLevel = 2;
    if (level > kSizeLevel) return {};
    if (level < kSizeLevel) return {DefaultOf(node, level)};
    // The default margins stand with the margins.
    return {node.Children.GetSize() > 0 ? DefaultOf(*ChildAt(node, 0), level) : Value()};
  }

  // 0 means no default, unless an entry has that id.
  Value DefaultOf(const CQDFNode& node, std::size_t level) const {
    const KnownEntries& known = entries_[kind_.levels[level].list];
    const auto found = known.places.find(node.Default);
    if (found != known.places.end()) return (*known.names)[static_cast<std::size_t>(found->second)];
    return node.Default == 0 ? Value() : Value("unknown id " + std::to_string(node.Default));
  }

  Traits ColorModeTraits(const CQDFNode& node, bool isOffered) const {
    const CQDFNode none{};
    const auto leaf = [&](int place) -> const CQDFNode& {
      return place < node.Children.GetSize() ? *ChildAt(node, place) : none;
    };
    const auto preset = [&](int place, const AStringArray& texts) {
      return place < node.Children.GetSize() ? TextAt(texts, leaf(place).Default) : Value();
    };
    return {isOffered ? "yes" : "no",
            TextAt(members_.OEMInfoList, node.Default),
            TextsOf(leaf(kProfileLeaf), members_.ICCProfileList),
            preset(kProfileLeaf, members_.ICCProfileList),
            TextsOf(leaf(kDitherLeaf), members_.DitherNameList),
            preset(kDitherLeaf, members_.DitherNameList),
            RipResolutionsOf(leaf(kRipResolutionLeaf), members_.DitherResolutionList)};
  }

  DocumentMembers members_;
  const PathKind& kind_;
  const std::vector<KnownEntries>& entries_;
  std::map<std::pair<const CQDFNode*, bool>, std::shared_ptr<const Traits>> traits_;
  int left_;
};

}  // namespace

const std::span<const PathKind> kPathKinds = kKinds;

bool ReadPaths(APMQDF& document, const PathKind& kind, const std::vector<KnownEntries>& entries,
               int most, PathNode& root) {
  return PathReader(document, kind, entries, most).Read(root);
}
