#pragma once

// Asks a document what a host can ask, along the paths that its own answers open, and compares each
// answer with what the plain algorithm gives. Vectors that aren't empty before show that answers
// are appended.

#include <set>
#include <vector>

#include "fuzz/fuzzing.h"
#include "qdf/control/ditherlist.h"
#include "qdf/core/documentmembers.h"
#include "qdf/query/iccprofile.h"
#include "tests/documents.h"

class Questions {
 public:
  // The second is the same document. It is read whole, while the first reads what it is asked for.
  Questions(APMQDF& document, APMQDF& whole) : d_(document), m_(whole) {}

  void AskAll() {
    std::vector<InkTypeInfo> inks;
    int unused = 0;
    d_.GetInkTypeList(inks, unused);
    RequireEqual(IDs(Records<InkTypeInfo>(m_.InkList)), IDs(inks), "the inks");
    for (const InkTypeInfo& ink : inks) AskFrom(ink.ID);
    AskMediaSources();
  }

 private:
  // The end of the first path of these ids, found by going back where a path leads nowhere.
  static CQDFNode* PathTo(const CQDFNode& node, const std::vector<int>& ids,
                          std::size_t level = 0) {
    for (int i = 0; i < node.Children.GetSize(); ++i) {
      CQDFNode* child = ChildAt(node, i);
      if (IsIDInArray(static_cast<std::uint32_t>(ids[level]), *child) == 0) continue;
      if (level + 1 == ids.size()) return child;
      CQDFNode* found = PathTo(*child, ids, level + 1);
      if (found != nullptr) return found;
    }
    return nullptr;
  }

  // Asks for what may follow the node, and goes on with some of it and with an unknown id.
  template <class Record, class Ask, class GoOn>
  void AskNext(const APtrArray& list, const CQDFNode* node, Ask ask, GoOn goOn) {
    if (--questionsLeft_ < 0) return;
    std::vector<Record> answer(1);
    answer[0].ID = kNoID;
    std::vector<Record> expected(answer);
    int defaultPosition = 0;
    ADWordArray allowed;
    for (int i = 0; node != nullptr && i < node->Children.GetSize(); ++i) {
      MergeIDArray(allowed, *ChildAt(*node, i));
    }
    for (const Record& record : Records<Record>(list)) {
      if (IsIDInArray(static_cast<std::uint32_t>(record.ID), allowed) == 0) continue;
      if (record.ID == node->Default) defaultPosition = static_cast<int>(expected.size());
      expected.push_back(record);
    }
    int at = -1;
    Require((ask(answer, at) != 0) == (node != nullptr), "the result tells of a missing path");
    RequireEqual(IDs(expected), IDs(answer), "what may follow");
    Require(at == defaultPosition, "the default position");
    for (std::size_t i = 0; i < answer.size() && i < 4; ++i) goOn(answer[i].ID);
  }

  void AskFrom(int i) {
    const CQDFNode& tree = m_.ControlTreeRoot;
    const auto resolutions = [&](int m, int p, int r) {
      AskNext<ColorModeInfo>(
          m_.ColorModeList, PathTo(tree, {i, m, p, r}),
          [&](auto& all, int& at) { return d_.GetColorModeList(i, m, p, r, all, at); },
          [&](int c) {
            AskDetails(PathTo(tree, {i, m, p, r, c}), i, m, p, r, c);
          });
    };
    const auto printModes = [&](int m, int p) {
      AskNext<ResolutionInfo>(
          m_.ResolutionList, PathTo(tree, {i, m, p}),
          [&](auto& all, int& at) { return d_.GetResolutionList(i, m, p, all, at); },
          [&](int r) { resolutions(m, p, r); });
    };
    const auto media = [&](int m) {
      AskNext<PrintModeInfo>(
          m_.PrintModeList, PathTo(tree, {i, m}),
          [&](auto& all, int& at) { return d_.GetPrintModeList(i, m, all, at); },
          [&](int p) { printModes(m, p); });
    };
    AskNext<MediaTypeInfo>(
        m_.MediaList, PathTo(tree, {i}),
        [&](auto& all, int& at) { return d_.GetMediaTypeList(i, all, at); }, media);
  }

  // "former|a|b>b": the names and, behind ">", the default. Without a node nothing changes but the
  // default, which is empty.
  static std::string PlainNames(const CQDFNode* leaf, const AStringArray& names, bool tested) {
    std::vector<AString> listed{"former"};
    AString preselected;
    if (leaf != nullptr && leaf->Default >= 0) preselected = names[leaf->Default];
    for (int i = 0; leaf != nullptr && i < leaf->IDs.GetSize(); ++i) {
      const AString name = names[static_cast<int>(leaf->IDs.GetAt(i))];
      const bool all = name.CompareNoCase("ALL") == 0;
      if (all) listed = {"ALL"};
      if (all) break;
      listed.push_back(name);
    }
    const bool refused =
        tested && listed.front() != "ALL" && PMIccProfileIsInList(preselected, listed) == 0;
    return Dump(listed) + ">" + (refused ? "" : static_cast<const char*>(preselected));
  }

  template <class Ask>
  static std::string AskedNames(Ask ask) {
    std::vector<AString> names{"former"};
    AString preselected("former");
    ask(names, preselected);
    return Dump(names) + ">" + static_cast<const char*>(preselected);
  }

  void AskDetails(const CQDFNode* node, int i, int m, int p, int r, int c) {
    const auto leaf = [&](int place) { return node != nullptr ? ChildAt(*node, place) : nullptr; };
    RequireEqual(PlainNames(leaf(0), m_.ICCProfileList, true),
                 AskedNames([&](auto& names, AString& name) {
                   return d_.GetProfileList(i, m, p, r, c, names, name);
                 }),
                 "the profiles");
    RequireEqual(PlainNames(leaf(1), m_.DitherNameList, false),
                 AskedNames([&](auto& names, AString& name) {
                   return d_.GetDitherList(i, m, p, r, c, names, name);
                 }),
                 "the dithers");
    AString text;
    const bool given = node != nullptr && node->Default >= 0;
    Require((d_.GetOEMInfo(i, m, p, r, c, text) != 0) == given, "whether there is a text");
    if (given) RequireEqual(Dump({m_.OEMInfoList[node->Default]}), Dump({text}), "the text");
    double x = -1;
    double y = -1;
    const AString unknown(std::string(65, '?').c_str());  // longer than any
    Require(d_.GetRipResolutionForDither(i, m, p, r, c, unknown, x, y) == 0 && x == 0.0 && y == 0.0,
            "an unknown dither has no resolution");
    std::set<std::string> asked;
    for (const auto& record : Records<DitherResolutionInfo>(m_.DitherResolutionList)) {
      if (node == nullptr || record.OwnerNode != leaf(2)) continue;
      // Of records with one name the first answers.
      if (!asked.insert(Str(record.Name)).second) continue;
      const AString name(Str(record.Name).c_str());
      Require(d_.GetRipResolutionForDither(i, m, p, r, c, name, x, y) != 0,
              "a known dither has a resolution");
      Require(x == record.XResolution && y == record.YResolution && x > 0.0 && y > 0.0,
              "the resolution of a dither");
    }
  }

  void AskMediaSources() {
    const CQDFNode& tree = m_.MediaSourceTreeRoot;
    // Here nothing goes back, and of a size's margins only the first node counts.
    const auto margins = [&](int source, const CQDFNode* node, int size) {
      const CQDFNode* sizeNode = node != nullptr ? PathTo(*node, {size}) : nullptr;
      const bool any = sizeNode != nullptr && sizeNode->Children.GetSize() > 0;
      CQDFNode parent;
      if (any) AddChildNode(parent, ChildAt(*sizeNode, 0)->IDs);
      if (any) parent.Default = ChildAt(*sizeNode, 0)->Default;
      AskNext<MarginInfo>(
          m_.MarginInfoList, any ? &parent : nullptr,
          [&](auto& all, int& at) { return d_.GetMarginInfoList(source, size, all, at); },
          [](int) {});
    };
    const auto sizes = [&](int source) {
      const CQDFNode* node = PathTo(tree, {source});
      AskNext<MediaSizeInfo>(
          m_.MediaSizeList, node,
          [&](auto& all, int& at) { return d_.GetMediaSizeList(source, all, at); },
          [&](int size) { margins(source, node, size); });
    };
    AskNext<MediaSourceInfo>(
        m_.MediaSourceList, &tree,
        [&](auto& all, int& at) { return d_.GetMediaSourceList(all, at); }, sizes);
  }

  static constexpr int kNoID = -77;

  APMQDF& d_;
  DocumentMembers m_;
  int questionsLeft_ = 300;
};
