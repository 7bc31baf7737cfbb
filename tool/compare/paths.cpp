#include "tool/compare/paths.h"

#include <algorithm>
#include <map>
#include <unordered_set>

#include "qdf/control/ditherlist.h"
#include "qdf/core/documentmembers.h"
#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"
#include "tool/reportline.h"

namespace {

constexpr PathLevel kJobPath[] = {
    {"ink", "Ink", kInks},
    {"media", "Media", kMedia},
    {"printMode", "Print mode", kPrintModes},
    {"resolution", "Resolution", kResolutions},
    {"colorMode", "Colour mode", kColorModes},
};

// Whether an option is listed behind those before it; all inks are.
constexpr Trait kOffered = {"offered", "Offered step by step"};
constexpr Trait kDefaultInk[] = {{"defaultInk", "Default ink"}};
constexpr Trait kInkTraits[] = {kOffered, {"defaultMedia", "Default media"}};
constexpr Trait kMediaTraits[] = {kOffered, {"defaultPrintMode", "Default print mode"}};
constexpr Trait kPrintModeTraits[] = {kOffered, {"defaultResolution", "Default resolution"}};
constexpr Trait kResolutionTraits[] = {kOffered, {"defaultColorMode", "Default colour mode"}};
constexpr Trait kColorModeTraits[] = {
    kOffered,
    {"printerSpecificText", "Printer specific text"},
    {"profiles", "Profiles"},
    {"defaultProfile", "Default profile"},
    {"dithers", "Dithers"},
    {"defaultDither", "Default dither"},
    {"ripResolutions", "RIP resolutions"},
};
constexpr std::span<const Trait> kJobTraits[] = {
    kDefaultInk, kInkTraits, kMediaTraits, kPrintModeTraits, kResolutionTraits, kColorModeTraits};

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
  bool isOffered = false;  // by the first node before it, which decides what is listed
};

Value TextAt(const AStringArray& texts, int index) {
  if (index < 0 || index >= texts.GetSize()) return {};
  const AString& text = texts.ElementAt(index);
  return text.GetLength() > 0 ? Value(static_cast<const char*>(text)) : Value();
}

bool IsAll(const Value& name) { return EqualNoCase(LineText(name), "ALL"); }

// As queries hand them out: each once, and "ALL" alone.
List NamesOf(const CQDFNode& leaf, const AStringArray& names) {
  List list;
  ADWordArray indices;
  UniqueIDs(indices).AddAll(leaf.IDs);
  for (const std::uint32_t id : indices) {
    const int index = static_cast<int>(id);
    if (index < 0 || index >= names.GetSize()) continue;
    list.push_back(TextAt(names, index));
    if (IsAll(list.back())) return {Value("ALL")};
  }
  return list;
}

// Only a profile that the list allows is handed out.
Value Accepted(const Value& profile, const List& profiles) {
  const std::string name = LineText(profile);
  const bool isAllowed =
      profiles.empty() || std::any_of(profiles.begin(), profiles.end(), [&](const Value& each) {
        return IsAll(each) || EqualNoCase(LineText(each), name);
      });
  return isAllowed ? profile : Value();
}

// Of several for one dither only the first is ever found.
List RipResolutionsOf(const CQDFNode& leaf, const APtrArray& records) {
  List list;
  std::unordered_set<std::string_view> told;
  for (const std::uint32_t id : leaf.IDs) {
    const int index = static_cast<int>(id);
    if (index < 0 || index >= records.GetSize()) continue;
    const auto& record = *static_cast<const DitherResolutionInfo*>(records.GetAt(index));
    if (!told.insert(FieldText(record.Name)).second) continue;
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
      if (!Sort(*node, level, node == &first, below)) return false;
    }
    path.children.reserve(below.size());
    for (const auto& [entry, children] : below) {
      path.children.emplace_back().entry = entry;
      if (!Read(children, level + 1, path.children.back())) return false;
      // What is neither listed nor leads on is told by no query.
      const bool isWhole = level + 1 == kind_.levels.size();
      const bool leadsOn = isWhole || !path.children.back().children.empty();
      if (!leadsOn && !children.isOffered) path.children.pop_back();
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
    if (kind_.isJob && level == 0) return {DefaultOf(node, level)};
    const Value offered = isOffered ? "yes" : "no";
    if (kind_.isJob) {
      return level < kind_.levels.size() ? Traits{offered, DefaultOf(node, level)}
                                         : ColorModeTraits(node, offered);
    }
    constexpr std::size_t kSizeLevel = 2;
    if (level > kSizeLevel) return {};
    if (level < kSizeLevel) return {DefaultOf(node, level)};
    // The default margins stand with the margins.
    return {node.Children.GetSize() > 0 ? DefaultOf(*ChildAt(node, 0), level) : Value()};
  }

  // Of the options listed behind a node the one with its default id, or else the first in the
  // order of the document's list.
  Value DefaultOf(const CQDFNode& node, std::size_t level) const {
    const KnownEntries& known = entries_[kind_.levels[level].list];
    const bool areAllListed = kind_.isJob && level == 0;
    int best = -1;
    int bestID = 0;
    const auto offer = [&](int id, int place) {
      const int rank = id == node.Default ? 0 : place + 1;
      if (best >= 0 && rank >= best) return;
      best = rank;
      bestID = id;
    };
    if (areAllListed) {
      for (const auto& [id, place] : known.order) offer(id, place);
    } else {
      ForEachListed(node, level, [&](std::uint32_t each) {
        const auto found = known.order.find(static_cast<int>(each));
        if (found != known.order.end()) offer(found->first, found->second);
      });
    }
    if (best < 0) return {};
    return (*known.names)[static_cast<std::size_t>(known.places.at(bestID))];
  }

  // The margins of a size stand in one node, with their default.
  template <class Take>
  void ForEachListed(const CQDFNode& node, std::size_t level, Take take) const {
    const bool isMargin = !kind_.isJob && level + 1 == kind_.levels.size();
    const auto takeAll = [&](const CQDFNode& from) {
      for (const std::uint32_t id : from.IDs) take(id);
    };
    if (isMargin) return takeAll(node);
    for (int i = 0; i < node.Children.GetSize(); ++i) takeAll(*ChildAt(node, i));
  }

  Traits ColorModeTraits(const CQDFNode& node, const Value& offered) const {
    const CQDFNode none{};
    const auto leaf = [&](int place) -> const CQDFNode& {
      return place < node.Children.GetSize() ? *ChildAt(node, place) : none;
    };
    const auto preset = [&](int place, const AStringArray& texts) {
      return place < node.Children.GetSize() ? TextAt(texts, leaf(place).Default) : Value();
    };
    const List profiles = NamesOf(leaf(kProfileLeaf), members_.ICCProfileList);
    return {offered,
            TextAt(members_.OEMInfoList, node.Default),
            profiles,
            Accepted(preset(kProfileLeaf, members_.ICCProfileList), profiles),
            NamesOf(leaf(kDitherLeaf), members_.DitherNameList),
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
