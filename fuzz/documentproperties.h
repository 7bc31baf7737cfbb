#pragma once

// What holds for any document that loads, whatever stands in it.

#include <memory>
#include <set>

#include "fuzz/questions.h"
#include "qdf/support/numbers.h"

// What a write keeps of a document, as texts: all that a written document and the one that it was
// written from have in common.
class Kept {
 public:
  explicit Kept(APMQDF& document) : d_(document), m_(document) {
    for (const AString& text :
         {d_.GetProdcutType(), d_.GetTranslationTable(), d_.GetCustomMediaFile()}) {
      Put(static_cast<const char*>(text));
    }
    double n[4];
    d_.GetMediaSizeLimits(n[0], n[1], n[2], n[3]);
    for (const double number : n) Put(number);
    d_.GetMinimumMargin(n[0], n[1], n[2], n[3]);
    for (const double number : n) Put(number);
    PutAll<InkTypeInfo>(m_.InkList, &InkTypeInfo::DisplayName, &InkTypeInfo::InternalName);
    PutAll<MediaTypeInfo>(m_.MediaList, &MediaTypeInfo::DisplayName, &MediaTypeInfo::InternalName,
                          &MediaTypeInfo::UnlocalizedName, &MediaTypeInfo::IsCustomizableMedia);
    PutAll<PrintModeInfo>(m_.PrintModeList, &PrintModeInfo::DisplayName,
                          &PrintModeInfo::InternalName);
    PutAll<ResolutionInfo>(m_.ResolutionList, &ResolutionInfo::DisplayName);
    for (const auto& each : Records<ResolutionInfo>(m_.ResolutionList)) {
      Put(TruncateToInt(each.XResolution));
      Put(TruncateToInt(each.YResolution));
    }
    PutAll<ColorModeInfo>(m_.ColorModeList, &ColorModeInfo::DisplayName,
                          &ColorModeInfo::InternalName);
    for (const auto& each : Records<ColorModeInfo>(m_.ColorModeList)) {
      for (int i = 0; i < each.ColorantCount; ++i) PutColorant(each.Colorants[i].Colorant);
    }
    PutAll<MediaSourceInfo>(m_.MediaSourceList, &MediaSourceInfo::DisplayName,
                            &MediaSourceInfo::InternalName);
    PutAll<MediaSizeInfo>(m_.MediaSizeList, &MediaSizeInfo::DisplayName,
                          &MediaSizeInfo::InternalName, &MediaSizeInfo::PCLid,
                          &MediaSizeInfo::IsRoll, &MediaSizeInfo::FirstDimension,
                          &MediaSizeInfo::SecondDimension);
    PutAll<MarginInfo>(m_.MarginInfoList, &MarginInfo::DisplayName, &MarginInfo::InternalName,
                       &MarginInfo::FirstMargin, &MarginInfo::SecondMargin,
                       &MarginInfo::ThirdMargin, &MarginInfo::FourthMargin);
    if (hasNegativeIDs_) return;
    if (m_.ControlTreeRoot.Children.GetSize() > 0) PutControl(*ChildAt(m_.ControlTreeRoot, 0), 1);
    const CQDFNode& root = m_.MediaSourceTreeRoot;
    Put(root.Children.GetSize() > 0 ? root.Default : 0);
    for (int i = 0; i < root.Children.GetSize(); ++i) PutSource(*ChildAt(root, i));
  }

  const std::string& Text() const { return text_; }
  // The margins of each media size, in the order of the tree: those of its node, and those that are
  // answered for the first ids of its media source and of itself. Where ids repeat, an earlier node
  // may be the one that answers. A write puts what is answered into the node.
  const std::string& Margins() const { return margins_; }
  const std::string& AnsweredMargins() const { return answeredMargins_; }
  // In an id list text a "-" is no sign, so a tree of negative ids doesn't come through.
  bool HasNegativeIDs() const { return hasNegativeIDs_; }

 private:
  void Put(const std::string& text) { text_.append(text).append("\n"); }
  void Put(int number) { Put(std::to_string(number)); }
  void Put(double number) { Put(std::string(AString().Format("%f", number))); }
  template <std::size_t N>
  void Put(const char (&field)[N]) {
    Put(Str(field));
  }
  template <class Record, class... Fields>
  void PutAll(const APtrArray& list, Fields Record::*... fields) {
    for (const Record& record : Records<Record>(list)) {
      hasNegativeIDs_ = hasNegativeIDs_ || record.ID < 0;
      Put(record.ID);
      (Put(record.*fields), ...);
    }
  }
  void PutColorant(const ColorantInfo& colorant) {
    Put(colorant.DisplayName);
    Put(colorant.InternalName);
    Put(colorant.IsSpotColor);
    Put(colorant.ColorDepth);
  }
  void PutNameAt(const AStringArray& names, int index) {
    Put(index >= 0 ? std::string(names[index]) : "none");
  }

  void PutControl(const CQDFNode& node, int level) {
    Put(Dump(node.IDs));
    if (level == 5) {
      const CQDFNode& profiles = *ChildAt(node, 0);
      PutNameAt(m_.OEMInfoList, node.Default);
      PutNameAt(m_.ICCProfileList, profiles.Default);
      for (const std::uint32_t id : profiles.IDs)
        PutNameAt(m_.ICCProfileList, static_cast<int>(id));
      PutDithers(ChildAt(node, 1)->IDs);
      return;
    }
    Put(node.Default);
    for (int i = 0; i < node.Children.GetSize(); ++i) PutControl(*ChildAt(node, i), level + 1);
  }

  // Written in capitals, and not read again beside "ALL".
  void PutDithers(const ADWordArray& ids) {
    std::vector<std::string> names;
    for (const std::uint32_t id : ids) {
      AString name = m_.DitherNameList[static_cast<int>(id)];
      name.MakeUpper();
      if (std::find(names.begin(), names.end(), std::string(name)) == names.end())
        names.emplace_back(name);
    }
    if (std::find(names.begin(), names.end(), "ALL") != names.end()) names.clear();
    Put(Join(names, "|"));
  }

  void PutSource(const CQDFNode& source) {
    Put(Dump(source.IDs));
    if (source.IDs.GetSize() == 0) return;
    Put(source.Default);
    for (int i = 0; i < source.Children.GetSize(); ++i) {
      const CQDFNode& size = *ChildAt(source, i);
      Put(Dump(size.IDs));
      PutMargins(margins_, size.Children.GetSize() > 0 ? ChildAt(size, 0)->IDs : ADWordArray());
      std::vector<MarginInfo> answer;
      int unused = 0;
      d_.GetMarginInfoList(static_cast<int>(source.IDs.GetAt(0)),
                           static_cast<int>(size.IDs.GetAt(0)), answer, unused);
      ADWordArray answered;
      for (const MarginInfo& margin : answer) answered.Add(static_cast<std::uint32_t>(margin.ID));
      PutMargins(answeredMargins_, answered);
    }
  }

  // Once each and sorted: a list with records of one id answers all of them.
  static void PutMargins(std::string& text, const ADWordArray& ids) {
    const std::set<std::uint32_t> sorted(ids.begin(), ids.end());
    for (const std::uint32_t id : sorted) text += std::to_string(id) + " ";
    text += "\n";
  }

  APMQDF& d_;
  DocumentMembers m_;
  std::string text_;
  std::string margins_;
  std::string answeredMargins_;
  bool hasNegativeIDs_ = false;
};

// Loads it from a file and writes it, three times in a row, and asks it everything. What is written
// is the same whether the dithers were read before or not.
inline void CheckDocument(std::string_view text) {
  std::string former;
  std::string formerMargins;
  MemoryFile file(text);
  for (int i = 0; i < 3; ++i) {
    const std::string bytes = file.Bytes();
    const auto document = LoadFile(static_cast<const char*>(file.Path()));
    if (i == 0 && document == nullptr) return;
    Require(document != nullptr, "a written document loads");
    if (i == 0) Questions(*LoadFile(static_cast<const char*>(file.Path())), *document).AskAll();
    const Kept kept(*document);
    if (i > 0) RequireEqual(former, kept.Text(), "what a write keeps");
    if (i > 0) RequireEqual(formerMargins, kept.Margins(), "the margins that a write keeps");
    former = kept.Text();
    formerMargins = kept.AnsweredMargins();
    MemoryFile whole;
    document->PMWriteQDF(whole.Path());
    LoadFile(static_cast<const char*>(file.Path()))->PMWriteQDF(file.Path());
    RequireEqual(whole.Bytes(), file.Bytes(), "what is written with dithers that were read before");
    const bool settled = !kept.HasNegativeIDs() && kept.Margins() == kept.AnsweredMargins();
    if (i == 2 && settled) RequireEqual(bytes, file.Bytes(), "what is written again stays");
  }
}
