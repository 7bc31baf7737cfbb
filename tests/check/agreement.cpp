#include "tests/check/agreement.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include "tests/check/facts.h"
#include "tests/documents.h"

namespace {

bool FindsWriteLoss(const check::Examination& examination) {
  const auto& findings = examination.findings;
  return std::any_of(findings.begin(), findings.end(), [](const check::Finding& finding) {
    return std::string_view(finding.rule->name).starts_with("write-");
  });
}

// The first that is missing, empty when none is.
std::string Missing(const Facts& wanted, const Facts& there) {
  Facts missing;
  std::set_difference(wanted.begin(), wanted.end(), there.begin(), there.end(),
                      std::back_inserter(missing));
  return missing.empty() ? "" : missing.front();
}

std::string WriteDisagreement(APMQDF& document, const std::string& scratch) {
  AFilePath path(scratch.c_str());
  document.PMWriteQDF(path);
  const std::unique_ptr<APMQDF> written = LoadFile(scratch);
  std::remove(scratch.c_str());
  if (written == nullptr) return "the written document is refused";
  const std::string lost = Missing(FactsOf(document), FactsOf(*written));
  return lost.empty() ? "" : "a write loses without a word: " + lost;
}

}  // namespace

bool Finds(const check::Examination& examination, check::Severity severity) {
  const auto& findings = examination.findings;
  return std::any_of(findings.begin(), findings.end(), [severity](const check::Finding& finding) {
    return finding.rule->severity == severity;
  });
}

std::string Disagreement(const std::string& path, const std::string& scratch) {
  const check::Examination examination = check::Examine(path, {true, false});
  const std::unique_ptr<APMQDF> document = LoadFile(path);
  const bool refused = Finds(examination, check::Severity::kError);
  if (refused != (document == nullptr)) {
    return refused ? "a document with an error loads" : "a document without errors is refused";
  }
  if (refused || Finds(examination, check::Severity::kWarning)) return "";
  const std::string lost = Missing(FactsOfFile(path), FactsOf(*document));
  if (!lost.empty()) return "the object lacks without a warning: " + lost;
  return FindsWriteLoss(examination) ? "" : WriteDisagreement(*document, scratch);
}
