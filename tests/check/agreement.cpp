#include "tests/check/agreement.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include "qdf/core/documentmembers.h"
#include "tests/check/facts.h"
#include "tests/documents.h"
#include "tool/check/origins.h"
#include "tool/compare/changes.h"

namespace {

std::string WriteDisagreement(APMQDF& document, const std::string& scratch) {
  AFilePath path(scratch.c_str());
  document.PMWriteQDF(path);
  const std::unique_ptr<APMQDF> written = LoadFile(scratch);
  std::remove(scratch.c_str());
  if (written == nullptr) return "the written document is refused";
  Object report;
  const Difference difference = AddChanges(Comparison(document, *written), Shown::kChanges, report);
  const bool isSame = difference == Difference::kNone || difference == Difference::kUnknown;
  return isSame ? "" : "a write loses without a word: " + RenderText(report, false);
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

}  // namespace

bool Finds(const check::Examination& examination, check::Severity severity) {
  return std::any_of(
      examination.findings.begin(), examination.findings.end(),
      [&](const check::Finding& finding) { return finding.rule->severity == severity; });
}

std::string Disagreement(const std::string& path, const std::string& scratch) {
  const check::Examination examination = check::Examine(path, {true, false});
  const std::unique_ptr<APMQDF> document = LoadFile(path);
  const bool refused = Finds(examination, check::Severity::kError);
  if (refused != (document == nullptr)) {
    return refused ? "a document with an error loads" : "a document without errors is refused";
  }
  if (refused) return "";
  const check::Origins origins(path);
  const DocumentMembers members(*document);
  if (!SameTree(origins.Control(), members.ControlTreeRoot, 5) ||
      !SameTree(origins.Sources(), members.MediaSourceTreeRoot, 3)) {
    return "a node has another element's ids";
  }
  if (Finds(examination, check::Severity::kWarning)) return "";
  const std::string lost = LostOf(path);
  if (!lost.empty()) return "the object lacks without a warning: " + lost;
  const bool losesByWrite = std::any_of(
      examination.findings.begin(), examination.findings.end(), [](const auto& finding) {
        return std::string_view(finding.rule->name).starts_with("write-");
      });
  return losesByWrite ? "" : WriteDisagreement(*document, scratch);
}
