#include "tool/check/xmlview.h"

#include <algorithm>

#include "qdf/support/filebytes.h"
#include "qdf/support/text.h"
#include "qdf/support/xmlnodes.h"
#include "qdf/support/xmlwellformed.h"

namespace check {

namespace {

// The next node in the order of the file within `top`, null behind the last.
pugi::xml_node NextUnder(pugi::xml_node node, const pugi::xml_node& top) {
  if (node.first_child()) return node.first_child();
  while (node != top && !node.next_sibling()) node = node.parent();
  return node != top ? node.next_sibling() : pugi::xml_node();
}

// The node itself when it is an element of that name, else the next sibling that is one. The parser
// would also find an instruction, which has a name as well.
pugi::xml_node ElementNamed(std::string_view name, pugi::xml_node node) {
  while (node && (!IsElement(node) || node.name() != name)) node = node.next_sibling();
  return node;
}

}  // namespace

Source::Source(std::string_view text) : text_(text), lines_{0} {
  for (std::size_t at = text_.find('\n'); at != std::string::npos; at = text_.find('\n', at + 1)) {
    lines_.push_back(at + 1);
  }
}

Position Source::PositionOf(std::size_t offset) const {
  offset = std::min(offset, text_.size());
  const auto next = std::upper_bound(lines_.begin(), lines_.end(), offset);
  return {static_cast<int>(next - lines_.begin()), static_cast<int>(offset - *(next - 1)) + 1};
}

std::string_view Source::Line(int line) const {
  const std::string_view rest = Text().substr(lines_[static_cast<std::size_t>(line) - 1]);
  const std::string_view text = rest.substr(0, rest.find('\n'));
  return text.substr(0, text.find_last_not_of('\r') + 1);
}

Place Attribute::NamePlace() const {
  const std::string_view name = Name();
  return {static_cast<std::size_t>(name.data() - buffer_), name.size()};
}

Place Attribute::ValuePlace() const {
  if (!attribute_) return {};
  const auto begin = static_cast<std::size_t>(Value() - buffer_);
  const std::string_view text = source_->Text();
  const std::size_t end = text.find(text[begin - 1], begin);
  return {begin, end - begin};
}

Place Attribute::PlaceOf(std::string_view part) const {
  const Place whole = ValuePlace();
  if (source_->At(whole) != Value()) return whole;
  return {whole.begin + static_cast<std::size_t>(part.data() - Value()), part.size()};
}

Place Element::NamePlace() const {
  return {static_cast<std::size_t>(node_.offset_debug()), std::string_view(Name()).size()};
}

Element Element::Parent() const {
  const pugi::xml_node parent = node_.parent();
  return IsElement(parent) ? Element(parent, source_) : Element();
}

Element Element::First() const { return {ElementFrom(node_.first_child()), source_}; }

Element Element::Next() const { return {ElementFrom(node_.next_sibling()), source_}; }

Element Element::First(const char* name) const {
  return {ElementNamed(name, node_.first_child()), source_};
}

Element Element::Next(const char* name) const {
  return {ElementNamed(name, node_.next_sibling()), source_};
}

std::string Element::Text() const { return std::string(View(OwnText(node_))); }

pugi::xml_node Element::FirstText() const {
  for (const pugi::xml_node part : node_.children()) {
    if (IsText(part) && !Trimmed(part.value()).empty()) return part;
  }
  return {};
}

Place Element::TextPlace() const {
  const pugi::xml_node text = FirstText();
  if (!text) return NamePlace();
  const auto begin = static_cast<std::size_t>(text.offset_debug());
  const bool isCData = text.type() == pugi::node_cdata;
  const std::size_t end = source_->Text().find(isCData ? "]]>" : "<", begin);
  const std::string_view trimmed = Trimmed(source_->At({begin, end - begin}));
  return {static_cast<std::size_t>(trimmed.data() - source_->Text().data()), trimmed.size()};
}

std::size_t Element::CountUnder() const {
  std::size_t count = 0;
  for (pugi::xml_node at = NextUnder(node_, node_); at; at = NextUnder(at, node_)) {
    if (IsElement(at)) ++count;
  }
  return count;
}

Attribute Element::Wrap(pugi::xml_attribute attribute) const {
  return {attribute, Buffer(), source_};
}

// The parser works inside `bytes`, and the nodes of `xml` point into them: they must outlive it.
struct XMLView::Document {
  FileBytes bytes;
  pugi::xml_document xml;
};

XMLView::XMLView() : document_(std::make_unique<Document>()) {}

XMLView::~XMLView() = default;

XMLView::Fault XMLView::Load(const char* path) {
  FileBytes& bytes = document_->bytes;
  if (const char* reason = ReadFileBytes(path, bytes)) return {reason, true, 0};
  source_ = Source(bytes.Text());
  const XMLFindings findings = ExamineXML(bytes.Text());
  if (findings.fault != nullptr) return {findings.fault, false, findings.offset};
  const unsigned int options = XMLParseOptions(findings.splitsText) | pugi::parse_comments |
                               pugi::parse_pi | pugi::parse_doctype;
  const pugi::xml_parse_result result = document_->xml.load_buffer_inplace(
      bytes.data.get(), bytes.size, options, pugi::encoding_utf8);
  if (result) return {};
  return {result.description(), false, static_cast<std::size_t>(result.offset)};
}

Element XMLView::Root() const { return {document_->xml.document_element(), &source_}; }

std::vector<Place> XMLView::Asides() const {
  const pugi::xml_node top = document_->xml;
  std::vector<Place> places;
  for (pugi::xml_node at = NextUnder(top, top); at; at = NextUnder(at, top)) {
    if (IsElement(at) || IsText(at)) continue;
    // The parser tells where the content begins, not the mark ahead of it.
    const auto content = static_cast<std::size_t>(at.offset_debug());
    const std::size_t begin = source_.Text().rfind('<', content);
    places.push_back({begin, content - begin});
  }
  return places;
}

}  // namespace check
