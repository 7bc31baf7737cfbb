#include "tool/check/examine.h"

#include <algorithm>

#include "qdf/support/text.h"
#include "tool/check/rules.h"

namespace check {

namespace {

// The declared encoding when it is neither UTF-8 nor a part of it.
std::string_view ForeignEncoding(std::string_view text) {
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
  if (text.substr(0, 5) != "<?xml") return {};
  const std::string_view declaration = text.substr(0, text.find("?>"));
  const std::size_t at = declaration.find("encoding");
  if (at == std::string_view::npos) return {};
  const std::size_t open = declaration.find_first_of("\"'", at);
  if (open == std::string_view::npos) return {};
  const std::string_view rest = declaration.substr(open + 1);
  const std::string_view encoding = rest.substr(0, rest.find(declaration[open]));
  const bool isFamiliar = EqualNoCase(encoding, "UTF-8") || EqualNoCase(encoding, "US-ASCII");
  return isFamiliar ? std::string_view() : encoding;
}

void CheckEncoding(std::string_view text, Findings& findings) {
  const std::string_view encoding = ForeignEncoding(text);
  const auto isForeign = [](char c) { return static_cast<unsigned char>(c) >= 0x80U; };
  const auto first = std::find_if(text.begin(), text.end(), isForeign);
  if (encoding.empty() || first == text.end()) return;
  findings.AddAt(Code::kEncodingIgnored,
                 {static_cast<std::size_t>(encoding.data() - text.data()), encoding.size()},
                 "nobody looks at the encoding " + Quote(encoding) +
                     ": names are handed out with the bytes that they have, and a write takes them "
                     "for UTF-8",
                 "save the file as UTF-8");
}

void ExamineContent(const XMLView& document, const std::string& path, const Choice& choice,
                    Findings& findings) {
  CheckEncoding(document.Bytes().Text(), findings);
  CheckStructure(document, findings);
  const Lists lists = CheckLists(document, findings);
  if (choice.hostFiles) CheckHostFiles(document, path, findings);
  if (lists.refused) return;
  const ElementNode control = CheckControl(document, lists, findings);
  CheckColorModes(control, findings);
  CheckReach(control, lists, findings);
  const ElementNode sources = CheckMediaSources(document, lists, findings);
  CheckUse(lists, control, sources, findings);
  if (choice.writeLoss) CheckWriteLoss(document, lists, control, sources, findings);
}

}  // namespace

Examination Examine(const std::string& path, const Choice& choice) {
  XMLView document;
  Findings findings(document.Bytes());
  const XMLView::Fault fault = document.Load(path.c_str());
  if (fault.unreadable) {
    findings.AddUnplaced(Code::kUnreadable, fault.reason, "correct the path, or what it leads to");
  } else if (fault.reason != nullptr) {
    findings.AddAt(Code::kNotWellFormed, {fault.offset, 1}, fault.reason,
                   "correct the XML here; nothing else is examined until then");
  } else {
    ExamineContent(document, path, choice, findings);
  }
  return {document.Bytes(), findings.Take()};
}

}  // namespace check
