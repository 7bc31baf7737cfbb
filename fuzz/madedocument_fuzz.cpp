// Documents made from choices: well-formed, with small ids that meet each other, deep trees, and in
// each place a text that is likely to be misread there.

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
  explicit Maker(std::string_view choices) : choose_(choices) {}

  std::string Document() {
    const auto entry = [&] {
      for (const char* name : {"DisplayName", "InternalName"}) AddText(name, Name());
      for (const char* name : {"ID", "IsCustomizableMedia"}) AddText(name, ID());
      for (const char* name : {"Value", "Size"}) AddText(name, Numbers());
      for (const char* name : {"PCLid", "IsRoll"}) AddText(name, Number());
      Add("ColorantList", "", [&] { Repeat(2, [&] { AddColorant(); }); });
    };
    Add("Definition", "", [&] {
      for (const char* name : {"ProductType", "TranslationTable", "CustomMediaFile"})
        AddText(name, Name());
      for (const char* name : {"MinAndMaxMediaSize", "MinMarginSize"}) AddText(name, Numbers());
      for (const char* name : kLists) {
        Add(name, "", [&] { Repeat(6, [&] { Add("e", "", entry); }); });
      }
    });
    Add("Control_Definition", Attribute("DefaultInk", ID()), [&] { AddLevel(0); });
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
  std::string ID() { return (choose_.Chance(64) ? "-" : "") + std::to_string(choose_.Below(9)); }
  std::string IDs() { return choose_.Chance(4) ? OneOf(kIDLists) : ID() + "," + ID(); }
  std::string Number() { return OneOf(kNumbers); }
  std::string Numbers() { return Number() + choose_.OneOf({" ", ",", "x"}) + Number() + " 1,.5"; }
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
      const std::string attributes =
          Attribute("ID", IDs()) + Attribute(names.defaultAttribute, last ? Name() : ID());
      Add(names.element, attributes + Attribute("DefaultDither", Name()),
          [&] { last ? AddLeaves() : AddLevel(level + 1); });
    });
  }

  void AddLeaves() {
    AddText("PrinterSpecificSetting", Name());
    Repeat(3, [&] { AddText("ICCProfile", Name()); });
    Add("DitherList", Attribute("SupportAll", choose_.OneOf({"", "0", "1", "-1"})), [&] {
      Repeat(3, [&] {
        Add("Dither", Attribute("Name", Name()) + Attribute("RipResolution", Number()), [] {});
      });
    });
  }

  void AddMediaSource() {
    Add("MediaSource", Attribute("ID", IDs()) + Attribute("DefaultMediaSizeID", ID()), [&] {
      Repeat(3, [&] {
        const std::string margins =
            Attribute("MarginIDList", IDs()) + Attribute("DefaultMarginID", ID());
        Add("MediaSize", Attribute("ID", IDs()) + margins, [] {});
      });
    });
  }

  Choices choose_;
  std::string text_;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckDocument(Maker(TextOf(data, size)).Document());
  return 0;
}
