#include "tool/check/examine.h"

#include <algorithm>

#include "qdf/support/text.h"
#include "tool/check/rules.h"
#include "tool/utf8.h"

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
  const bool isFamiliar = EqualNoCase(encoding, "UTF-8") || EqualNoCase(encoding, "UTF8") ||
                          EqualNoCase(encoding, "US-ASCII");
  return isFamiliar ? std::string_view() : encoding;
}

bool IsForeign(char c) { return static_cast<unsigned char>(c) >= 0x80U; }

void CheckBytes(std::string_view text, Findings& findings) {
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t size = CharacterSize(text.substr(at));
    if (size == 0) break;
    at += size;
  }
  if (at == text.size()) return;
  findings.AddAt(Code::kNotUTF8, {at, 1},
                 "this byte isn't UTF-8: names are handed out with the "
                 "bytes that they have, and hosts take them for UTF-8",
                 "save the file as UTF-8");
}

bool IsUTF16(std::string_view text) {
  using namespace std::string_view_literals;
  const std::string_view start = text.substr(0, 2);
  return start == "\xFF\xFE"sv || start == "\xFE\xFF"sv || start == "<\0"sv || start == "\0<"sv;
}

void CheckEncoding(std::string_view text, Findings& findings) {
  const std::string_view encoding = ForeignEncoding(text);
  if (encoding.empty()) return CheckBytes(text, findings);
  if (std::none_of(text.begin(), text.end(), IsForeign)) return;
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
  const Kept kept = CheckKept(document, findings);
  if (choice.hostFiles) CheckHostFiles(document, path, findings);
  if (kept.lists.refused) return;
  CheckColorModes(kept.control, findings);
  CheckReach(kept.control, kept.lists, findings);
  CheckUse(kept, findings);
  if (choice.writeLoss) CheckWriteLoss(document, kept, findings);
}

}  // namespace

Kept CheckKept(const XMLView& document, Findings& findings) {
  Kept kept{CheckLists(document, findings), {}, {}};
  if (kept.lists.refused) return kept;
  kept.control = CheckControl(document, kept.lists, findings);
  kept.sources = CheckMediaSources(document, kept.lists, findings);
  return kept;
}

Examination Unreadable(std::string reason, std::string hint) {
  Source none{std::string_view()};
  Findings findings(none);
  findings.AddUnplaced(Code::kUnreadable, std::move(reason), std::move(hint));
  return {std::move(none), findings.Take()};
}

Examination Examine(const std::string& path, const Choice& choice) {
  XMLView document;
  Findings findings(document.Bytes());
  const XMLView::Fault fault = document.Load(path.c_str());
  if (fault.unreadable) {
    return Unreadable(fault.reason, "correct the path, or what it leads to");
  } else if (fault.reason != nullptr && IsUTF16(document.Bytes().Text())) {
    findings.AddAt(Code::kNotWellFormed, {0, 2}, "the file is UTF-16", "save it as UTF-8");
  } else if (fault.reason != nullptr) {
    findings.AddAt(Code::kNotWellFormed, {fault.offset, 1}, fault.reason,
                   "correct the XML here; nothing else is examined until then");
  } else {
    ExamineContent(document, path, choice, findings);
  }
  return {document.Bytes(), findings.Take()};
}

}  // namespace check
