// What a loaded document holds.

#include <algorithm>
#include <set>
#include <span>
#include <sstream>
#include <utility>

#include "qdf/control/ditherlist.h"
#include "qdf/core/documentmembers.h"
#include "tests/check/facts.h"
#include "tests/documents.h"

namespace {

using Numbers = std::initializer_list<double>;

std::string ShownNumbers(Numbers numbers) {
  std::ostringstream text;
  const char* between = "";
  for (const double number : numbers) text << std::exchange(between, " ") << number;
  return text.str();
}

class ObjectFacts {
 public:
  explicit ObjectFacts(APMQDF& document) : document_(document), members_(document) {}

  Facts Make() {
    Header();
    Records<InkTypeInfo>("InkList", members_.InkList);
    Records<MediaTypeInfo>("MediaList", members_.MediaList);
    Records<PrintModeInfo>("PrintModeList", members_.PrintModeList);
    Records<ResolutionInfo>("ResolutionList", members_.ResolutionList);
    Records<ColorModeInfo>("ColorModeList", members_.ColorModeList);
    Records<MediaSizeInfo>("MediaSizeList", members_.MediaSizeList);
    Records<MarginInfo>("MarginInfoList", members_.MarginInfoList);
    Records<MediaSourceInfo>("MediaSourceList", members_.MediaSourceList);
    const char* controlDefaults[] = {"DefaultInk", "DefaultMedia", "DefaultPrintMode",
                                     "DefaultResolution", "DefaultColorMode"};
    Add("Control_Definition");
    Nodes(members_.ControlTreeRoot, "Control_Definition", controlDefaults);
    const char* sourceDefaults[] = {"DefaultMediaSourceID", "DefaultMediaSizeID"};
    Add("MediaSource_Control");
    Nodes(members_.MediaSourceTreeRoot, "MediaSource_Control", sourceDefaults);
    return std::move(facts_);
  }

 private:
  void Add(std::string fact) { facts_.push_back(std::move(fact)); }
  void Add(const std::string& name, const std::string& text) { Add(name + "=" + Shown(text)); }
  void Add(const std::string& name, Numbers numbers) { Add(name + "=" + ShownNumbers(numbers)); }

  void Header() {
    Add("Definition");
    Add("ProductType", static_cast<const char*>(document_.GetProdcutType()));
    Add("TranslationTable", static_cast<const char*>(document_.GetTranslationTable()));
    Add("CustomMediaFile", static_cast<const char*>(document_.GetCustomMediaFile()));
    double n[4];
    document_.GetMediaSizeLimits(n[0], n[1], n[2], n[3]);
    Add("MinAndMaxMediaSize", {n[0], n[1], n[2], n[3]});
    document_.GetMinimumMargin(n[2], n[3], n[0], n[1]);
    Add("MinMarginSize", {n[0], n[1], n[2], n[3]});
  }

  template <class Record>
  void Records(const std::string& list, const APtrArray& records) {
    Add(list);
    for (const Record& record : ::Records<Record>(records)) {
      Add(list + " entry");
      Add(list + " ID", {double(record.ID)});
      Add(list + " DisplayName", Str(record.DisplayName));
      if constexpr (requires { record.InternalName; }) {
        Add(list + " InternalName", Str(record.InternalName));
      }
      Values(list + " ", record);
    }
  }

  // What only some lists have.
  template <class Record>
  void Values(const std::string&, const Record&) {}
  void Values(const std::string& place, const MediaTypeInfo& media) {
    Add(place + "IsCustomizableMedia", {double(media.IsCustomizableMedia)});
  }
  void Values(const std::string& place, const ResolutionInfo& resolution) {
    AddResolution(place + "Value=", resolution.XResolution, resolution.YResolution);
  }
  void Values(const std::string& place, const MediaSizeInfo& size) {
    Add(place + "PCLid", {double(size.PCLid)});
    Add(place + "IsRoll", {double(size.IsRoll)});
    Add(place + "Size", {size.FirstDimension, size.SecondDimension});
  }
  void Values(const std::string& place, const MarginInfo& margin) {
    Add(place + "Size",
        {margin.FirstMargin, margin.SecondMargin, margin.ThirdMargin, margin.FourthMargin});
  }
  void Values(const std::string& place, const ColorModeInfo& mode) {
    const std::string list = place + "ColorantList";
    Add(list);
    for (int i = 0; i < mode.ColorantCount; ++i) {
      const ANewColorOpt& option = mode.Colorants[i];
      const ColorantInfo& colorant = option.Colorant;
      Add(list + " entry");
      Add(list + " ColorDepth", {double(colorant.ColorDepth)});
      Add(list + " DisplayName", Str(colorant.DisplayName));
      Add(list + " InternalName", Str(colorant.InternalName));
      Add(list + " entry @IsSpotColor", {double(colorant.IsSpotColor)});
      Add(list + " entry @IsPrint", {double(colorant.IsPrint)});
      Add(list + " entry @Shape", Str(option.Shape));
      Add(list + " entry @Frequency", {double(option.Frequency)});
      Add(list + " entry @Angle", {option.Setting5});
    }
  }

  // One number stands for both when they are the same.
  void AddResolution(const std::string& place, double x, double y) {
    Add(place + ShownNumbers({x, y}));
    if (x == y) Add(place + ShownNumbers({x}));
  }

  void AddIDs(const std::string& place, const ADWordArray& ids) {
    for (const std::uint32_t id : ids) Add(place + ShownNumbers({double(id)}));
  }

  // A negative index is none.
  static std::string At(const AStringArray& names, int index) {
    return index >= 0 ? static_cast<const char*>(names.ElementAt(index)) : "";
  }

  // `defaults` names the attribute of the node and those of the levels below it.
  void Nodes(CQDFNode& node, const std::string& place, std::span<const char*> defaults) {
    AddIDs(place + " ID ", node.IDs);
    if (defaults.empty()) {
      const bool isControl = place[0] == 'C';
      return isControl ? ColorMode(node, place) : MediaSize(node, place);
    }
    Add(place + " " + defaults.front(), {double(node.Default)});
    for (int i = 0; i < node.Children.GetSize(); ++i) {
      const std::string here = place + "/" + std::to_string(i);
      Add(here);
      Nodes(*ChildAt(node, i), here, defaults.subspan(1));
    }
  }

  void MediaSize(CQDFNode& node, const std::string& place) {
    if (node.Children.GetSize() == 0) return;
    const CQDFNode& margin = *ChildAt(node, 0);
    AddIDs(place + " MarginIDList ", margin.IDs);
    Add(place + " DefaultMarginID", {double(margin.Default)});
  }

  void ColorMode(CQDFNode& node, const std::string& place) {
    Add(place + " PrinterSpecificSetting " + At(members_.OEMInfoList, node.Default));
    CQDFNode& profiles = *ChildAt(node, 0);
    CQDFNode& dithers = *ChildAt(node, 1);
    Add(place + " DefaultICCProfile", At(members_.ICCProfileList, profiles.Default));
    Add(place + " DefaultDither", At(members_.DitherNameList, dithers.Default));
    for (const std::uint32_t id : profiles.IDs) {
      Add(place + " ICCProfile " + At(members_.ICCProfileList, static_cast<int>(id)));
    }
    std::set<std::string> names;
    for (const std::uint32_t id : dithers.IDs) {
      names.insert(At(members_.DitherNameList, static_cast<int>(id)));
    }
    if (node.Children.GetSize() > 2) Rips(*ChildAt(node, 2), place, names);
    for (const std::string& name : names) Add(place + " Dither " + name);
  }

  void Rips(CQDFNode& node, const std::string& place, std::set<std::string>& names) {
    for (const std::uint32_t id : node.IDs) {
      const auto& rip = *static_cast<const DitherResolutionInfo*>(
          members_.DitherResolutionList.GetAt(static_cast<int>(id)));
      names.insert(Str(rip.Name));
      AddResolution(place + " Dither " + Str(rip.Name) + " at ", rip.XResolution, rip.YResolution);
    }
  }

  APMQDF& document_;
  DocumentMembers members_;
  Facts facts_;
};

}  // namespace

Facts FactsOf(APMQDF& document) {
  Facts facts = ObjectFacts(document).Make();
  std::sort(facts.begin(), facts.end());
  return facts;
}
