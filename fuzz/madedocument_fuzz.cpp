// Documents made from choices: well-formed, with small ids that meet each other, deep trees, and in
// each place a text that is likely to be misread there. No expression takes more than one choice,
// so that an input makes the same document whatever the compiler.

#include "fuzz/documentproperties.h"

namespace {

// Each between "|".
constexpr const char* kNames =
    "|a|A|ab|ALL|all| All\t|b c|&#13;&#10;x|Plain/Paper|&#1;|&lt;&amp;&quot;&gt;]]&gt;|\xC3\xA9|"
    "\xFF| ";
constexpr const char* kNumbers =
    "600|300x600|0.5|1.25X-3|0.1234567|-0.0000001|1e308|1e999|nan|-inf|8589934592.1234567|x||"
    "2147483648|-99999999999999999999|0x1p3|1e|1,2 3,4";
constexpr const char* kIDLists =
    "ALL| all |-(1,2)|ALL-(3)|1,2,3|(2,1)|3-1||-|7,,6 ,5x|4,4,4,(1|0,1,2,3,4,5,6,7|9";
constexpr const char* kLists[] = {"InkList",         "MediaList",     "PrintModeList",
                                  "ResolutionList",  "MediaSizeList", "MarginInfoList",
                                  "MediaSourceList", "ColorModeList"};
struct Level {
  const char* element;
  const char* defaultAttribute;
};
constexpr Level kLevels[] = {{"Ink", "DefaultMedia"},
                             {"Media", "DefaultPrintMode"},
                             {"PrintMode", "DefaultResolution"},
                             {"Resolution", "DefaultColorMode"},
                             {"ColorMode", "DefaultICCProfile"}};

class Maker {
 public:
  // The parts of a document have a third of the choices each: none waits for what others leave.
  explicit Maker(std::string_view choices)
      : definition_(choices.substr(0, choices.size() / 3)),
        control_(choices.substr(definition_.size(), choices.size() / 3)),
        mediaSources_(choices.substr(definition_.size() + control_.size())) {}

  std::string Document() {
    const auto entry = [&] {
      for (const char* name : {"DisplayName", "InternalName"}) AddText(name, Name());
      for (const char* name : {"ID", "IsCustomizableMedia"}) AddText(name, ID());
      for (const char* name : {"Value", "Size"}) AddText(name, Numbers());
      for (const char* name : {"PCLid", "IsRoll"}) AddText(name, Number());
      Add("ColorantList", "", [&] { Repeat(2, [&] { AddColorant(); }); });
    };
    choose_ = Choices(definition_);
    Add("Definition", "", [&] {
      for (const char* name : {"ProductType", "TranslationTable", "CustomMediaFile"})
        AddText(name, Name());
      for (const char* name : {"MinAndMaxMediaSize", "MinMarginSize"}) AddText(name, Numbers());
      for (const char* name : kLists) {
        Add(name, "", [&] { Repeat(6, [&] { Add("e", "", entry); }); });
      }
    });
    choose_ = Choices(control_);
    Add("Control_Definition", Attribute("DefaultInk", ID()), [&] { AddLevel(0); });
    choose_ = Choices(mediaSources_);
    Add("MediaSource_Control", Attribute("DefaultMediaSourceID", ID()),
        [&] { Repeat(3, [&] { AddMediaSource(); }); });
    return "<QDF_Info>" + text_ + "</QDF_Info>";
  }

 private:
  template <class Work>
  void Repeat(unsigned int most, Work work) {
    for (unsigned int left = choose_.Below(most) + 1; left > 0; --left) work();
  }
  template <class Fill>
  void Add(const std::string& name, const std::string& attributes, Fill fill) {
    text_ += "<" + name + attributes + ">";
    fill();
    text_ += "</" + name + ">";
  }
  void AddText(const std::string& name, const std::string& text) {
    if (!choose_.Chance(16)) Add(name, "", [&] { text_ += text; });
  }
  static std::string Attribute(const std::string& name, const std::string& value) {
    return " " + name + "=\"" + value + "\"";
  }

  std::string OneOf(const char* texts) {
    const std::vector<std::string> all = Split(texts);
    return all[choose_.Below(static_cast<unsigned int>(all.size()))];
  }
  std::string ID() {
    const std::string sign = choose_.Chance(64) ? "-" : "";
    return sign + std::to_string(choose_.Below(9));
  }
  std::string IDs() {
    if (choose_.Chance(4)) return OneOf(kIDLists);
    const std::string first = ID();
    return first + "," + ID();
  }
  std::string Number() { return OneOf(kNumbers); }
  std::string Numbers() {
    std::string numbers = Number();
    numbers += choose_.OneOf({" ", ",", "x"});
    numbers += Number();
    return numbers + " 1,.5";
  }
  // Now and then long enough to fill every field.
  std::string Name() {
    std::string name = OneOf(kNames);
    if (choose_.Chance(16)) name.append(254 + choose_.Below(4), 'n');
    return name;
  }

  void AddColorant() {
    const std::string number = Number();
    Add("c",
        Attribute("IsSpotColor", number) + Attribute("Angle", number) + Attribute("Shape", Name()),
        [&] {
          AddText("InternalName", Name());
          AddText("ColorDepth", number);
        });
  }

  void AddLevel(std::size_t level) {
    const bool last = level + 1 == std::size(kLevels);
    const Level& names = kLevels[level];
    Repeat(level < 2 ? 3 : 2, [&] {
      std::string attributes = Attribute("ID", IDs());
      attributes += Attribute(names.defaultAttribute, last ? Name() : ID());
      attributes += Attribute("DefaultDither", Name());
      Add(names.element, attributes, [&] { last ? AddLeaves() : AddLevel(level + 1); });
    });
  }

  void AddLeaves() {
    AddText("PrinterSpecificSetting", Name());
    Repeat(3, [&] { AddText("ICCProfile", Name()); });
    Add("DitherList", Attribute("SupportAll", choose_.OneOf({"", "0", "1", "-1"})), [&] {
      Repeat(3, [&] {
        const std::string name = Attribute("Name", Name());
        Add("Dither", name + Attribute("RipResolution", Number()), [] {});
      });
    });
  }

  void AddMediaSource() {
    const std::string ids = Attribute("ID", IDs());
    Add("MediaSource", ids + Attribute("DefaultMediaSizeID", ID()), [&] {
      Repeat(3, [&] {
        std::string attributes = Attribute("ID", IDs());
        attributes += Attribute("MarginIDList", IDs());
        attributes += Attribute("DefaultMarginID", ID());
        Add("MediaSize", attributes, [] {});
      });
    });
  }

  std::string_view definition_;
  std::string_view control_;
  std::string_view mediaSources_;
  Choices choose_{{}};
  std::string text_;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckDocument(Maker(TextOf(data, size)).Document());
  return 0;
}
