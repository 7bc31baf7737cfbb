#include "bench/ppd.h"

#include <sstream>

#include "qdf/control/ditherlist.h"
#include "qdf/core/documentmembers.h"
#include "qdf/support/text.h"

namespace {

// What stands in a PPD between quotes or behind a slash.
std::string Harmless(std::string_view text) {
  std::string harmless;
  for (const char c : text.substr(0, 70)) {
    const bool harmful = c < ' ' || c == '"' || c == ':' || c == '/' || c == '<' || c == '>';
    harmless += harmful ? '-' : c;
  }
  return harmless;
}

class PPDText {
 public:
  explicit PPDText(APMQDF& document) : members_(document) {
    text_ << "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
             "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: "
             "\"BENCH.PPD\"\n*Manufacturer: \"Bench\"\n*Product: \"(Bench)\"\n*PSVersion: "
             "\"(3010.000) 0\"\n*ModelName: \"Bench\"\n*ShortNickName: \"Bench\"\n"
             "*NickName: \"Bench\"\n*LanguageLevel: \"3\"\n*ColorDevice: True\n";
  }

  void Choices() {
    Option<InkTypeInfo>("InkType", "I", members_.InkList);
    Option<MediaTypeInfo>("MediaType", "M", members_.MediaList);
    Option<PrintModeInfo>("PrintMode", "P", members_.PrintModeList);
    Option<ResolutionInfo>("Resolution", "R", members_.ResolutionList);
    Option<ColorModeInfo>("ColorModel", "C", members_.ColorModeList);
    Option<MediaSourceInfo>("InputSlot", "S", members_.MediaSourceList);
    Option<MediaSizeInfo>("PageSize", "Z", members_.MediaSizeList);
    for (int i = 0; i < members_.MediaSizeList.GetSize(); ++i) {
      const auto& size = *static_cast<MediaSizeInfo*>(members_.MediaSizeList.GetAt(i));
      text_ << "*PaperDimension Z" << size.ID << ": \"" << size.FirstDimension << ' '
            << size.SecondDimension << "\"\n*ImageableArea Z" << size.ID << ": \"0 0 "
            << size.FirstDimension << ' ' << size.SecondDimension << "\"\n";
    }
  }

  void Combinations(PPDContent content) { Walk(members_.ControlTreeRoot, 0, "", content); }

  std::string Text() const { return text_.str(); }

 private:
  template <class Record>
  void Option(const char* keyword, const char* prefix, const APtrArray& list) {
    if (list.GetSize() == 0) return;
    const auto record = [&](int i) -> const Record& {
      return *static_cast<Record*>(list.GetAt(i));
    };
    text_ << "*OpenUI *" << keyword << ": PickOne\n*Default" << keyword << ": " << prefix
          << record(0).ID << '\n';
    for (int i = 0; i < list.GetSize(); ++i) {
      text_ << '*' << keyword << ' ' << prefix << record(i).ID << '/'
            << Harmless(FieldText(record(i).DisplayName)) << ": \"" << prefix << record(i).ID
            << "\"\n";
    }
    text_ << "*CloseUI: *" << keyword << '\n';
  }

  // Each path of ids, one id for each level, "I1.M2.P3.R4.C5".
  void Walk(const CQDFNode& node, std::size_t level, const std::string& path, PPDContent content) {
    constexpr std::string_view kPrefixes = "IMPRC";
    if (level == kPrefixes.size()) {
      Combination(node, path, content);
      return;
    }
    for (int i = 0; i < node.Children.GetSize(); ++i) {
      const CQDFNode& child = *ChildAt(node, i);
      for (const std::uint32_t id : child.IDs) {
        std::string step = path;
        if (!step.empty()) step += '.';
        step += kPrefixes[level];
        step += std::to_string(id);
        Walk(child, level + 1, step, content);
      }
    }
  }

  void Combination(const CQDFNode& node, const std::string& path, PPDContent content) {
    for (const std::uint32_t profile : ChildAt(node, kProfileLeaf)->IDs) {
      text_ << "*cupsICCProfile " << path << "/: \""
            << Harmless(View(members_.ICCProfileList.ElementAt(static_cast<int>(profile))))
            << "\"\n";
    }
    if (content == PPDContent::Choices) return;
    if (node.Default >= 0) {
      text_ << "*apSetting " << path << "/: \""
            << Harmless(View(members_.OEMInfoList.ElementAt(node.Default))) << "\"\n";
    }
    for (const std::uint32_t index : ChildAt(node, kRipResolutionLeaf)->IDs) {
      const auto& dither = *static_cast<DitherResolutionInfo*>(
          members_.DitherResolutionList.GetAt(static_cast<int>(index)));
      text_ << "*apDither " << path << '/' << Harmless(FieldText(dither.Name)) << ": \""
            << dither.XResolution << 'x' << dither.YResolution << "\"\n";
    }
  }

  DocumentMembers members_;
  std::ostringstream text_;
};

}  // namespace

std::string MakePPD(APMQDF& document, PPDContent content) {
  PPDText text(document);
  text.Choices();
  text.Combinations(content);
  return text.Text();
}
