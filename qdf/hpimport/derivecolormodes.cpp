#include "qdf/hpimport/derivecolormodes.h"

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

#include "qdf/definition/records.h"
#include "qdf/support/foreach.h"
#include "qdf/support/ownership.h"
#include "qdf/support/text.h"

namespace {

struct InkLayout {
  std::string_view inputFormat;
  std::string_view modeName;
};

constexpr std::array<InkLayout, 2> kLayouts = {{{"KCcMmY", "CMYKLcLm"}, {"KCMY", "CMYK"}}};

constexpr std::string_view kGrayModeName = "Gray Scale";

// Always in this order, not in that of the letters: K, C, M and Y make up the first four, c and m
// the others.
constexpr std::array<std::string_view, 6> kColorants = {"Cyan",  "Magenta", "Yellow",
                                                        "Black", "LCyan",   "LMagenta"};

// Null for a layout that isn't known.
const InkLayout* FindLayout(const AString& inputFormat) {
  const auto* found = std::find_if(kLayouts.begin(), kLayouts.end(), [&](const InkLayout& layout) {
    return layout.inputFormat == static_cast<const char*>(inputFormat);
  });
  return found != kLayouts.end() ? found : nullptr;
}

void SetColorant(ANewColorOpt& option, std::string_view name, int depth) {
  SetField(option.Colorant.InternalName, name);
  SetField(option.Colorant.DisplayName, name);
  option.Colorant.ColorDepth = depth;
  option.Colorant.IsSpotColor = 0;
}

std::unique_ptr<ColorModeInfo> MakeMode(std::string_view internalName, std::string_view displayName,
                                        std::size_t colorants) {
  auto mode = std::make_unique<ColorModeInfo>();
  SetField(mode->InternalName, internalName);
  SetField(mode->DisplayName, displayName);
  mode->Colorants = new ANewColorOpt[colorants];
  mode->ColorantCount = static_cast<int>(colorants);
  return mode;
}

std::unique_ptr<ColorModeInfo> MakeColorMode(const InkLayout& layout,
                                             const HPResourceInfo& resource) {
  auto mode = MakeMode(layout.modeName, "No", layout.inputFormat.size());
  for (std::size_t i = 0; i < layout.inputFormat.size(); ++i) {
    const bool isBlack = kColorants[i] == "Black";
    SetColorant(mode->Colorants[i], kColorants[i],
                isBlack ? resource.KColorDepth : resource.CColorDepth);
  }
  return mode;
}

std::unique_ptr<ColorModeInfo> MakeGrayMode(const HPResourceInfo& resource) {
  auto mode = MakeMode(kGrayModeName, "Yes", 1);
  SetColorant(mode->Colorants[0], "Gray", resource.KColorDepth);
  return mode;
}

// Adds modes to a list unless it holds them.
class ModeList {
 public:
  explicit ModeList(APtrArray& list) : list_(list) {
    ForEachRecord<ColorModeInfo>(list, [&](const ColorModeInfo& mode) {
      if (mode.Colorants == nullptr) return;
      known_.insert({FieldText(mode.InternalName), mode.Colorants[0].Colorant.ColorDepth});
    });
  }

  // The name outlives the list; `make` makes the mode with it and that depth of its first colorant.
  template <class Make>
  void Add(std::string_view name, int depth, Make make) {
    if (!known_.insert({name, depth}).second) return;
    std::unique_ptr<ColorModeInfo> mode = make();
    mode->ID = nextID_++;
    AddOwned(list_, std::move(mode));
  }

 private:
  APtrArray& list_;
  std::set<std::pair<std::string_view, int>> known_;
  int nextID_ = 1;
};

bool HasCyanOfDepth(const ColorModeInfo& mode, int depth) {
  return std::any_of(mode.Colorants, mode.Colorants + mode.ColorantCount, [&](const auto& option) {
    return option.Colorant.ColorDepth == depth &&
           FieldText(option.Colorant.InternalName) == kColorants[0];
  });
}

}  // namespace

int DeriveColorModeList(APtrArray& resources, APtrArray& colorModeList) {
  if (resources.GetSize() == 0) return 0;
  ModeList modes(colorModeList);
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const InkLayout* layout = FindLayout(resource.InputFormat);
    if (layout == nullptr) return;
    modes.Add(layout->modeName, resource.CColorDepth,
              [&] { return MakeColorMode(*layout, resource); });
    modes.Add(kGrayModeName, resource.KColorDepth, [&] { return MakeGrayMode(resource); });
  });
  return colorModeList.GetSize() > 0 ? 1 : 0;
}

bool IsKnownInkLayout(const AString& inputFormat) { return FindLayout(inputFormat) != nullptr; }

void CollectColorModeIDs(const HPResourceInfo& resource, const APtrArray& colorModeList,
                         ADWordArray& ids) {
  const InkLayout* layout = FindLayout(resource.InputFormat);
  if (layout == nullptr) return;
  ForEachRecord<ColorModeInfo>(colorModeList, [&](const ColorModeInfo& mode) {
    if (mode.Colorants == nullptr) return;
    const std::string_view name = FieldText(mode.InternalName);
    const bool isColor = name == layout->modeName && HasCyanOfDepth(mode, resource.CColorDepth);
    const bool isGray =
        name == kGrayModeName && mode.Colorants[0].Colorant.ColorDepth == resource.KColorDepth;
    if (isColor || isGray) ids.Add(static_cast<std::uint32_t>(mode.ID));
  });
}
