#include "tests/check/agreement.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include "qdf/core/documentmembers.h"
#include "tests/check/facts.h"
#include "tests/documents.h"
#include "tool/check/origins.h"

namespace {

template <class Wanted>
bool FindsRule(const check::Examination& examination, Wanted wanted) {
  return std::any_of(examination.findings.begin(), examination.findings.end(),
                     [&](const check::Finding& finding) { return wanted(*finding.rule); });
}

bool IsWriteLoss(const check::Rule& rule) {
  return std::string_view(rule.name).starts_with("write-");
}

// The first that is missing, empty when none is.
std::string Missing(const Facts& wanted, const Facts& there) {
  Facts missing;
  std::set_difference(wanted.begin(), wanted.end(), there.begin(), there.end(),
                      std::back_inserter(missing));
  return missing.empty() ? "" : missing.front();
}

// By place what is preselected of inks and margins, whose defaults a write doesn't keep.
std::string Preselected(APMQDF& document) {
  std::string text;
  const auto add = [&](const auto& records, int position) {
    const bool is = position < static_cast<int>(records.size());
    text += is ? std::to_string(records[static_cast<std::size_t>(position)].ID) + ' ' : "- ";
  };
  std::vector<InkTypeInfo> inks;
  int position = 0;
  document.GetInkTypeList(inks, position);
  add(inks, position);
  std::vector<MediaSourceInfo> sources;
  document.GetMediaSourceList(sources, position);
  for (const MediaSourceInfo& source : sources) {
    std::vector<MediaSizeInfo> sizes;
    document.GetMediaSizeList(source.ID, sizes, position);
    for (const MediaSizeInfo& size : sizes) {
      std::vector<MarginInfo> margins;
      document.GetMarginInfoList(source.ID, size.ID, margins, position);
      add(margins, position);
    }
  }
  return text;
}

// All facts but those that Preselected tells.
Facts KeptFacts(APMQDF& document) {
  Facts facts = FactsOf(document);
  std::erase_if(facts, [](const std::string& fact) {
    return fact.find(" DefaultInk") != std::string::npos ||
           fact.find(" DefaultMarginID") != std::string::npos;
  });
  return facts;
}

std::string WriteDisagreement(APMQDF& document, const std::string& scratch) {
  AFilePath path(scratch.c_str());
  document.PMWriteQDF(path);
  const std::unique_ptr<APMQDF> written = LoadFile(scratch);
  std::remove(scratch.c_str());
  if (written == nullptr) return "the written document is refused";
  if (Preselected(document) != Preselected(*written)) return "a write loses a default";
  const std::string lost = Missing(KeptFacts(document), KeptFacts(*written));
  return lost.empty() ? "" : "a write loses without a word: " + lost;
}

// The leaves below the last level come from elements of other kinds, no walk takes a node without
// ids, and "ALL" stands for media in the order of their names.
bool SameTree(const check::ElementNode& element, const CQDFNode& node, int levels) {
  std::vector<const CQDFNode*> children;
  for (int i = 0; levels > 0 && i < node.Children.GetSize(); ++i) {
    if (ChildAt(node, i)->IDs.GetSize() > 0) children.push_back(ChildAt(node, i));
  }
  const auto isSame = [&](const check::ElementNode& below, const CQDFNode* child) {
    return SameTree(below, *child, levels - 1);
  };
  return std::is_permutation(element.ids.begin(), element.ids.end(), node.IDs.begin(),
                             node.IDs.end()) &&
         std::equal(element.children.begin(), element.children.end(), children.begin(),
                    children.end(), isSame);
}

bool HasOrigins(const std::string& path, APMQDF& document) {
  const check::Origins origins(path);
  const DocumentMembers members(document);
  return SameTree(origins.Control(), members.ControlTreeRoot, 5) &&
         SameTree(origins.Sources(), members.MediaSourceTreeRoot, 3);
}

}  // namespace

bool Finds(const check::Examination& examination, check::Severity severity) {
  return FindsRule(examination, [&](const auto& rule) { return rule.severity == severity; });
}

std::string Disagreement(const std::string& path, const std::string& scratch) {
  const check::Examination examination = check::Examine(path, {true, false});
  const std::unique_ptr<APMQDF> document = LoadFile(path);
  const bool refused = Finds(examination, check::Severity::kError);
  if (refused != (document == nullptr)) {
    return refused ? "a document with an error loads" : "a document without errors is refused";
  }
  if (!refused && !HasOrigins(path, *document)) return "a node has another element's ids";
  if (refused || Finds(examination, check::Severity::kWarning)) return "";
  const std::string lost = Missing(FactsOfFile(path), FactsOf(*document));
  if (!lost.empty()) return "the object lacks without a warning: " + lost;
  return FindsRule(examination, IsWriteLoss) ? "" : WriteDisagreement(*document, scratch);
}
