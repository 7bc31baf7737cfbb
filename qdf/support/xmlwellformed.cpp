#include "qdf/support/xmlwellformed.h"

#include <array>
#include <cstdint>
#include <vector>

#include "qdf/support/hashindex.h"
#include "qdf/support/text.h"

namespace {

enum : std::uint8_t {
  kNameStart = 1,
  kName = 2,
  kSpace = 4,
  kControl = 8,
  kTextStop = 16,   // where plain text needs a closer look
  kValueStop = 32,  // where an attribute value does
};

// Bytes from 128 on are parts of characters that names may hold: which ones isn't tested, since the
// encoding of a document isn't looked at.
constexpr std::array<std::uint8_t, 256> MakeClasses() {
  std::array<std::uint8_t, 256> classes{};
  for (unsigned int c = 0; c < 256; ++c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c >= 128;
    const bool digit = c >= '0' && c <= '9';
    const bool space = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    std::uint8_t bits = 0;
    if (letter || c == '_' || c == ':') bits |= kNameStart | kName;
    if (digit || c == '-' || c == '.') bits |= kName;
    if (space) bits |= kSpace;
    if (c < ' ' && !space) bits |= kControl | kTextStop | kValueStop;
    if (c == '<' || c == '&' || c == ']') bits |= kTextStop;
    if (c == '<' || c == '&' || c == '"' || c == '\'') bits |= kValueStop;
    classes[c] = bits;
  }
  return classes;
}

constexpr std::array<std::uint8_t, 256> kClasses = MakeClasses();

bool Is(char c, std::uint8_t bits) { return (kClasses[static_cast<unsigned char>(c)] & bits) != 0; }

class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  XMLFault Run() {
    if (StartsWith("\xEF\xBB\xBF")) at_ += 3;
    start_ = at_;
    while (fault_.reason == nullptr && at_ < text_.size()) {
      if (text_[at_] == '<') {
        Markup();
      } else {
        Text();
      }
    }
    if (fault_.reason == nullptr && !open_.empty())
      Fail("this element is not closed", open_.back());
    if (fault_.reason == nullptr && !rootSeen_) Fail("there is no root element");
    return fault_;
  }

 private:
  struct Mark {
    std::size_t offset;
    std::string_view name;
  };

  bool Fail(const char* reason, std::size_t offset) {
    fault_ = {reason, offset};
    return false;
  }
  bool Fail(const char* reason) { return Fail(reason, at_); }
  bool Fail(const char* reason, const Mark& mark) { return Fail(reason, mark.offset); }

  bool StartsWith(std::string_view wanted) const {
    return text_.compare(at_, wanted.size(), wanted) == 0;
  }
  bool AtEnd() const { return at_ >= text_.size(); }
  bool At(char c) const { return !AtEnd() && text_[at_] == c; }
  bool AtClass(std::uint8_t bits) const { return !AtEnd() && Is(text_[at_], bits); }

  bool SkipSpace() {
    const std::size_t before = at_;
    while (AtClass(kSpace)) ++at_;
    return at_ != before;
  }

  bool Expect(char c, const char* reason) {
    if (!At(c)) return Fail(reason);
    ++at_;
    return true;
  }

  // Moves behind the next `end`; what is skipped holds no control characters.
  bool SkipPast(std::string_view end, const char* reason) {
    const std::size_t found = text_.find(end, at_);
    if (found == std::string_view::npos) return Fail(reason);
    for (; at_ < found; ++at_) {
      if (AtClass(kControl)) return Fail(kControlReason);
    }
    at_ = found + end.size();
    return true;
  }

  bool Name(std::string_view& name) {
    if (!AtClass(kNameStart)) return Fail("a name is missing or begins with a wrong character");
    const std::size_t begin = at_;
    while (AtClass(kName)) ++at_;
    name = text_.substr(begin, at_ - begin);
    return true;
  }

  void Text() {
    while (!AtEnd()) {
      while (!AtEnd() && !AtClass(kTextStop) && (!open_.empty() || AtClass(kSpace))) ++at_;
      if (AtEnd() || At('<')) return;
      if (open_.empty()) {
        Fail("there is text beside the root element");
        return;
      }
      if (At(']')) {
        if (StartsWith("]]>")) Fail("\"]]>\" stands in text");
        ++at_;
      } else if (At('&')) {
        Reference();
      } else {
        Fail(kControlReason);
      }
      if (fault_.reason != nullptr) return;
    }
  }

  bool Reference() {
    for (const std::string_view known : {"&lt;", "&gt;", "&amp;", "&quot;", "&apos;"}) {
      if (!StartsWith(known)) continue;
      at_ += known.size();
      return true;
    }
    return StartsWith("&#") ? CharacterNumber() : Fail("\"&\" begins no known reference");
  }

  bool CharacterNumber() {
    const std::size_t begin = at_;
    const bool hex = StartsWith("&#x");
    at_ += hex ? 3 : 2;
    constexpr std::uint32_t kLast = 0x10FFFF;
    std::uint32_t number = 0;
    bool digits = false;
    for (; !AtEnd(); ++at_, digits = true) {
      const char c = UpperChar(text_[at_]);
      const bool letter = hex && c >= 'A' && c <= 'F';
      if (!letter && (c < '0' || c > '9')) break;
      const int digit = letter ? c - 'A' + 10 : c - '0';
      if (number <= kLast) number = number * (hex ? 16U : 10U) + static_cast<std::uint32_t>(digit);
    }
    const bool surrogate = number >= 0xD800 && number <= 0xDFFF;
    if (!digits || !At(';') || number == 0 || number > kLast || surrogate) {
      return Fail("a character reference names no character", begin);
    }
    ++at_;
    return true;
  }

  void Markup() {
    if (StartsWith("<!--")) {
      Comment();
    } else if (StartsWith("<![CDATA[")) {
      if (open_.empty()) {
        Fail("there is text beside the root element");
      } else {
        SkipPast("]]>", "this CDATA section is not closed");
      }
    } else if (StartsWith("<!DOCTYPE")) {
      Doctype();
    } else if (StartsWith("<?")) {
      Instruction();
    } else if (StartsWith("</")) {
      EndTag();
    } else {
      StartTag();
    }
  }

  void Comment() {
    at_ += 4;
    if (SkipPast("--", "this comment is not closed")) Expect('>', "\"--\" stands in a comment");
  }

  void Instruction() {
    const std::size_t begin = at_;
    at_ += 2;
    std::string_view target;
    if (!Name(target)) return;
    if (EqualNoCase(target, "xml") && (begin != start_ || target != "xml")) {
      Fail("an XML declaration stands elsewhere than at the start", begin);
    } else if (!AtClass(kSpace) && !StartsWith("?>")) {
      Fail("a name holds a wrong character");
    } else {
      SkipPast("?>", "this processing instruction is not closed");
    }
  }

  // A document type is skipped whole, nested declarations included: nothing of it is ever used.
  void Doctype() {
    const std::size_t begin = at_;
    if (rootSeen_ || doctypeSeen_) {
      Fail("a document type stands elsewhere than before the root element");
      return;
    }
    doctypeSeen_ = true;
    constexpr const char* kOpen = "the document type is not closed";
    int depth = 0;
    while (!AtEnd()) {
      if (At('"') || At('\'')) {
        const std::string_view quote = text_.substr(at_, 1);
        ++at_;
        if (!SkipPast(quote, kOpen)) return;
      } else if (StartsWith("<!--")) {
        at_ += 4;
        if (!SkipPast("-->", kOpen)) return;
      } else if (StartsWith("<?")) {
        if (!SkipPast("?>", kOpen)) return;
      } else if (AtClass(kControl)) {
        Fail(kControlReason);
        return;
      } else {
        if (StartsWith("<!")) ++depth;
        const bool closed = At('>') && --depth == 0;
        ++at_;
        if (closed) return;
      }
    }
    Fail(kOpen, begin);
  }

  void EndTag() {
    const std::size_t begin = at_;
    at_ += 2;
    std::string_view name;
    if (!Name(name)) return;
    SkipSpace();
    if (!Expect('>', "this end tag is not closed")) return;
    if (open_.empty() || open_.back().name != name) {
      Fail("this end tag does not match its start tag", begin);
      return;
    }
    open_.pop_back();
  }

  void StartTag() {
    const std::size_t begin = at_;
    if (open_.empty() && rootSeen_) {
      Fail("there is more than one root element");
      return;
    }
    rootSeen_ = true;
    ++at_;
    std::string_view name;
    if (!Name(name) || !Attributes()) return;
    const bool empty = At('/');
    if (empty) ++at_;
    if (!Expect('>', "this tag holds a wrong character or is not closed")) return;
    if (!empty) open_.push_back({begin, name});
  }

  bool Attributes() {
    attributes_.clear();
    attributeIndex_.Clear();
    while (SkipSpace() && !At('/') && !At('>')) {
      const std::size_t begin = at_;
      std::string_view name;
      if (!Name(name)) return false;
      SkipSpace();
      if (!Expect('=', "an attribute has no value")) return false;
      SkipSpace();
      if (!Value()) return false;
      const std::uint32_t hash = HashText(name);
      const auto same = [&](int i) { return attributes_[static_cast<std::size_t>(i)] == name; };
      if (attributeIndex_.Find(hash, same) >= 0) {
        return Fail("this attribute stands twice", begin);
      }
      attributeIndex_.Add(hash, static_cast<int>(attributes_.size()));
      attributes_.push_back(name);
    }
    return true;
  }

  bool Value() {
    if (!At('"') && !At('\'')) return Fail("an attribute value has no quotes");
    const std::size_t begin = at_;
    const char quote = text_[at_++];
    while (true) {
      while (!AtEnd() && !AtClass(kValueStop)) ++at_;
      if (AtEnd()) return Fail("this attribute value is not closed", begin);
      if (At('&')) {
        if (!Reference()) return false;
      } else if (At('<')) {
        return Fail("\"<\" stands in an attribute value");
      } else if (AtClass(kControl)) {
        return Fail(kControlReason);
      } else if (text_[at_++] == quote) {
        return true;
      }
    }
  }

  static constexpr const char* kControlReason = "there is a control character";

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t start_ = 0;
  XMLFault fault_;
  bool rootSeen_ = false;
  bool doctypeSeen_ = false;
  std::vector<Mark> open_;
  std::vector<std::string_view> attributes_;
  HashIndex attributeIndex_;
};

}  // namespace

XMLFault FindXMLFault(std::string_view text) { return Scanner(text).Run(); }
