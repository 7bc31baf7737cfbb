#include "qdf/support/xmlwellformed.h"

#include <cstdint>
#include <cstring>
#include <vector>

#include "qdf/support/hashindex.h"
#include "qdf/support/text.h"
#include "qdf/support/xmlcharacters.h"
#include "qdf/support/xmldeclaration.h"

namespace {

constexpr const char* kControlReason = "there is a control character";
constexpr const char* kTextBesideRoot = "there is text beside the root element";

// The NUL behind the text is a control character: it ends every loop, so that none has to look for
// the end of the text.
class Scanner {
 public:
  explicit Scanner(std::string_view text)
      : begin_(text.data()), at_(begin_), end_(begin_ + text.size()) {}

  XMLFindings Run() {
    if (StartsWith("\xEF\xBB\xBF")) at_ += 3;
    start_ = at_;
    while (findings_.fault == nullptr && at_ != end_) {
      if (*at_ == '<') {
        Markup();
      } else if (open_.empty()) {
        BesideRoot();
      } else {
        Text();
      }
    }
    if (findings_.fault == nullptr && !open_.empty()) {
      Fail("this element is not closed", open_.back().begin);
    }
    if (findings_.fault == nullptr && !rootSeen_) Fail("there is no root element");
    return findings_;
  }

 private:
  struct OpenElement {
    const char* begin;
    std::string_view name;
    bool hasChild = false;
  };

  bool Fail(const char* reason, const char* place) {
    findings_.fault = reason;
    findings_.offset = static_cast<std::size_t>(place - begin_);
    return false;
  }
  bool Fail(const char* reason) { return Fail(reason, at_); }

  std::string_view Rest() const { return {at_, static_cast<std::size_t>(end_ - at_)}; }
  bool StartsWith(std::string_view wanted) const {
    return Rest().size() >= wanted.size() && std::memcmp(at_, wanted.data(), wanted.size()) == 0;
  }

  // The first place from here on that is, or is not, of these classes.
  const char* FirstOf(std::uint8_t bits) const {
    const char* place = at_;
    while (!IsXML(*place, bits)) ++place;
    return place;
  }
  const char* FirstNotOf(std::uint8_t bits) const {
    const char* place = at_;
    while (IsXML(*place, bits)) ++place;
    return place;
  }

  bool SkipSpace() {
    const char* before = at_;
    at_ = FirstNotOf(kSpace);
    return at_ != before;
  }

  // Documents repeat themselves: indentation and names are mostly those of the line before. Trying
  // the former text first takes one comparison instead of a look at each byte.
  bool SkipRepeated(std::string_view former, std::uint8_t goesOn) {
    if (former.empty() || !StartsWith(former) || IsXML(at_[former.size()], goesOn)) return false;
    at_ += former.size();
    return true;
  }

  void SkipLayout() {
    if (SkipRepeated(layout_, kSpace)) return;
    const char* begin = at_;
    SkipSpace();
    layout_ = {begin, static_cast<std::size_t>(at_ - begin)};
  }

  // Whole lists repeat themselves too: an element is as well-formed as the bytes that stood there
  // before. Elements without children aren't worth the comparison.
  bool SkipRepeatedElement() {
    if (open_.size() >= formerElements_.size()) return false;
    const std::string_view former = formerElements_[open_.size()];
    if (former.empty() || !StartsWith(former)) return false;
    at_ += former.size();
    return true;
  }

  // Only what isn't long, since each element within it may be compared as well.
  void Remember(const OpenElement& element) {
    constexpr std::size_t kLongest = 4096;
    const auto size = static_cast<std::size_t>(at_ - element.begin);
    if (!element.hasChild || size > kLongest) return;
    if (formerElements_.size() <= open_.size()) formerElements_.resize(open_.size() + 1);
    formerElements_[open_.size()] = {element.begin, size};
  }

  bool Expect(char c, const char* reason) {
    if (*at_ != c) return Fail(reason);
    ++at_;
    return true;
  }

  // Moves behind the next `closing`; what is skipped holds no control characters.
  bool SkipPast(std::string_view closing, const char* openReason) {
    const char* begin = at_;
    const std::size_t length = Rest().find(closing);
    if (length == std::string_view::npos) return Fail(openReason, begin);
    const char* last = begin + length;
    while (at_ != last && !IsXML(*at_, kControl)) ++at_;
    if (at_ != last) return Fail(kControlReason);
    at_ += closing.size();
    return true;
  }

  // `name` holds a former name on entry and the new one on return.
  bool Name(std::string_view& name) {
    if (SkipRepeated(name, kName)) return true;
    if (!IsXML(*at_, kNameStart)) return Fail("a name is missing or begins with a wrong character");
    const char* begin = at_;
    at_ = FirstNotOf(kName);
    name = {begin, static_cast<std::size_t>(at_ - begin)};
    return true;
  }

  void BesideRoot() {
    SkipLayout();
    if (at_ != end_ && *at_ != '<') Fail(kTextBesideRoot);
  }

  void Text() {
    SkipLayout();
    while (true) {
      at_ = FirstOf(kTextStop);
      if (*at_ == '<' || at_ == end_) return;
      if (*at_ == ']') {
        if (StartsWith("]]>")) Fail("\"]]>\" stands in text");
        ++at_;
      } else if (*at_ == '&') {
        Reference();
      } else {
        Fail(kControlReason);
      }
      if (findings_.fault != nullptr) return;
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
    const char* begin = at_;
    const bool hex = StartsWith("&#x");
    at_ += hex ? 3 : 2;
    constexpr std::uint32_t kLast = 0x10FFFF;
    std::uint32_t number = 0;
    bool digits = false;
    for (;; ++at_, digits = true) {
      const char c = UpperChar(*at_);
      const bool letter = hex && c >= 'A' && c <= 'F';
      if (!letter && (c < '0' || c > '9')) break;
      const int digit = letter ? c - 'A' + 10 : c - '0';
      if (number <= kLast) number = number * (hex ? 16U : 10U) + static_cast<std::uint32_t>(digit);
    }
    const bool surrogate = number >= 0xD800 && number <= 0xDFFF;
    if (!digits || *at_ != ';' || number == 0 || number > kLast || surrogate) {
      return Fail("a character reference names no character", begin);
    }
    ++at_;
    return true;
  }

  void Markup() {
    if (at_[1] == '/') {
      EndTag();
    } else if (at_[1] != '?' && at_[1] != '!') {
      StartTag();
    } else {
      findings_.splitsText = findings_.splitsText || !open_.empty();
      OtherMarkup();
    }
  }

  void OtherMarkup() {
    if (at_[1] == '?') {
      Instruction();
    } else if (StartsWith("<!--")) {
      Comment();
    } else if (StartsWith("<![CDATA[") && open_.empty()) {
      Fail(kTextBesideRoot);
    } else if (StartsWith("<![CDATA[")) {
      SkipPast("]]>", "this CDATA section is not closed");
    } else if (StartsWith("<!DOCTYPE")) {
      Doctype();
    } else {
      Fail("\"<!\" begins nothing that is known");
    }
  }

  void Comment() {
    at_ += 4;
    if (SkipPast("--", "this comment is not closed")) Expect('>', "\"--\" stands in a comment");
  }

  void Instruction() {
    const char* begin = at_;
    at_ += 2;
    std::string_view target;
    if (!Name(target)) return;
    if (EqualNoCase(target, "xml") && (begin != start_ || target != "xml")) {
      Fail("an XML declaration stands elsewhere than at the start", begin);
    } else if (!IsXML(*at_, kSpace) && !StartsWith("?>")) {
      Fail("a name holds a wrong character");
    } else {
      const char* content = at_;
      if (!SkipPast("?>", "this processing instruction is not closed")) return;
      const std::string_view inside(content, static_cast<std::size_t>(at_ - content) - 2);
      if (target == "xml" && !IsXMLDeclaration(inside)) {
        Fail("the XML declaration is malformed", begin);
      }
    }
  }

  // A document type is skipped whole, nested declarations included: nothing of it is ever used.
  void Doctype() {
    const char* begin = at_;
    if (rootSeen_ || doctypeSeen_) {
      Fail("a document type stands elsewhere than before the root element");
      return;
    }
    doctypeSeen_ = true;
    constexpr const char* kOpen = "the document type is not closed";
    int depth = 0;
    while (at_ != end_) {
      if (*at_ == '"' || *at_ == '\'') {
        const std::string_view quote(at_++, 1);
        if (!SkipPast(quote, kOpen)) return;
      } else if (StartsWith("<!--")) {
        at_ += 4;
        if (!SkipPast("-->", kOpen)) return;
      } else if (StartsWith("<?")) {
        if (!SkipPast("?>", kOpen)) return;
      } else if (*at_ == '<' && (at_[1] != '!' || !IsXML(at_[2], kNameStart))) {
        Fail("\"<\" begins nothing that a document type holds");
        return;
      } else if (IsXML(*at_, kControl)) {
        Fail(kControlReason);
        return;
      } else {
        if (StartsWith("<!")) ++depth;
        const bool closed = *at_ == '>' && --depth == 0;
        ++at_;
        if (closed) return;
      }
    }
    Fail(kOpen, begin);
  }

  void EndTag() {
    const char* begin = at_;
    at_ += 2;
    const std::string_view name = open_.empty() ? std::string_view() : open_.back().name;
    if (name.empty() || !StartsWith(name) || IsXML(at_[name.size()], kName)) {
      Fail("this end tag does not match its start tag", begin);
      return;
    }
    at_ += name.size();
    SkipSpace();
    if (!Expect('>', "this end tag is not closed")) return;
    const OpenElement closed = open_.back();
    open_.pop_back();
    Remember(closed);
  }

  void StartTag() {
    const char* begin = at_;
    if (open_.empty() && rootSeen_) {
      Fail("there is more than one root element");
      return;
    }
    rootSeen_ = true;
    if (!open_.empty()) open_.back().hasChild = true;
    if (SkipRepeatedElement()) return;
    ++at_;
    if (!Name(name_)) return;
    const std::string_view name = name_;
    if (!Attributes()) return;
    const bool empty = *at_ == '/';
    if (empty) ++at_;
    if (!Expect('>', "this tag holds a wrong character or is not closed")) return;
    if (!empty) open_.push_back({begin, name, false});
  }

  bool Attributes() {
    std::size_t count = 0;
    while (SkipSpace() && *at_ != '/' && *at_ != '>') {
      const char* begin = at_;
      if (count == attributes_.size()) attributes_.emplace_back();
      if (!Name(attributes_[count])) return false;
      SkipSpace();
      if (!Expect('=', "an attribute has no value")) return false;
      SkipSpace();
      if (!Value()) return false;
      if (!IsNewAttribute(count++)) return Fail("this attribute stands twice", begin);
    }
    return true;
  }

  // The index only where a walk would cost more: that is where a tag has a great many attributes.
  bool IsNewAttribute(std::size_t last) {
    constexpr std::size_t kFew = 8;
    const std::string_view name = attributes_[last];
    if (last < kFew) {
      for (std::size_t i = 0; i < last; ++i) {
        if (attributes_[i] == name) return false;
      }
      return true;
    }
    const auto same = [&](int i) { return attributes_[static_cast<std::size_t>(i)] == name; };
    if (last == kFew) {
      index_.Clear();
      for (std::size_t i = 0; i < last; ++i) {
        index_.Add(HashText(attributes_[i]), static_cast<int>(i));
      }
    }
    if (index_.Find(HashText(name), same) >= 0) return false;
    index_.Add(HashText(name), static_cast<int>(last));
    return true;
  }

  bool Value() {
    if (*at_ != '"' && *at_ != '\'') return Fail("an attribute value has no quotes");
    const char* begin = at_;
    const char quote = *at_++;
    while (true) {
      at_ = FirstOf(kValueStop);
      if (*at_ == quote) break;
      if (at_ == end_) return Fail("this attribute value is not closed", begin);
      if (*at_ == '&') {
        if (!Reference()) return false;
      } else if (*at_ == '<') {
        return Fail("\"<\" stands in an attribute value");
      } else if (IsXML(*at_, kControl)) {
        return Fail(kControlReason);
      } else {
        ++at_;  // the other kind of quote
      }
    }
    ++at_;
    return true;
  }

  const char* begin_;
  const char* at_;
  const char* end_;
  const char* start_ = nullptr;  // behind a byte order mark
  XMLFindings findings_;
  bool rootSeen_ = false;
  bool doctypeSeen_ = false;
  std::vector<OpenElement> open_;
  std::vector<std::string_view> formerElements_;  // the last with children at each depth
  std::string_view layout_;                       // the last white space between tags
  std::string_view name_;                         // of the last element
  std::vector<std::string_view> attributes_;      // of the present tag, and behind them former ones
  HashIndex index_;                               // of attributes_, when they are many
};

}  // namespace

XMLFindings ExamineXML(std::string_view text) { return Scanner(text).Run(); }
