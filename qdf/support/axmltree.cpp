#include "qdf/support/axmltree.h"

#include <algorithm>
#include <new>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "qdf/support/filebytes.h"
#include "qdf/support/lackofmeans.h"
#include "qdf/support/nothrow.h"
#include "qdf/support/savebytes.h"
#include "qdf/support/text.h"
#include "qdf/support/xmlnodes.h"
#include "qdf/support/xmlwellformed.h"

// The parser works inside `bytes`, and the nodes of `xml` point into them: they must outlive it.
struct AXMLTree::Document {
  // What is wrong with the file that `read` reads; no reason when it was loaded.
  template <class Read>
  AXMLFault Load(Read read);

  FileBytes bytes;
  pugi::xml_document xml;
  AXMLFault fault;
};

namespace {

AXMLFault FaultAt(std::string_view text, std::size_t offset, const char* reason) {
  const std::string_view before = text.substr(0, std::min(offset, text.size()));
  const std::size_t newline = before.rfind('\n');
  const std::size_t lineStart = newline == std::string_view::npos ? 0 : newline + 1;
  AXMLFault fault;
  fault.Reason = reason;
  fault.Line = static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1;
  fault.Column = static_cast<int>(before.size() - lineStart) + 1;
  return fault;
}

AXMLFault FileFault(const char* reason, bool lackedMeans) {
  AXMLFault fault;
  fault.Reason = reason;
  fault.LackedMeans = lackedMeans;
  return fault;
}

// Takes what the printer emits. In a text that leaves a carriage return as it is, which a parser
// would take for a line end; nowhere else does one come through.
class SavedText : public pugi::xml_writer {
 public:
  // Room for almost any document: what of it isn't used costs nothing, but growing costs copies.
  SavedText() { text_.reserve(std::size_t{2} << 20); }

  void write(const void* data, std::size_t size) override {
    std::string_view rest(static_cast<const char*>(data), size);
    while (true) {
      const std::size_t at = rest.find('\r');
      text_.append(rest.substr(0, at));
      if (at == std::string_view::npos) return;
      text_.append("&#13;");
      rest.remove_prefix(at + 1);
    }
  }

  std::string_view Text() const { return text_; }

 private:
  std::string text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
};

}  // namespace

AXMLTree::AXMLTree(const AString& rootName) : document_(std::make_unique<Document>()) {
  pugi::xml_node root = document_->xml.append_child(pugi::node_element);
  if (!root.set_name(rootName)) throw std::bad_alloc();
}

AXMLTree::~AXMLTree() = default;

template <class Read>
AXMLFault AXMLTree::Document::Load(Read read) {
  const char* unreadable = read(bytes);
  if (unreadable != nullptr) return FileFault(unreadable, LackedMeans());
  const XMLFindings findings = ExamineXML(bytes.Text());
  if (findings.fault != nullptr) return FaultAt(bytes.Text(), findings.offset, findings.fault);
  const pugi::xml_parse_result result = xml.load_buffer_inplace(
      bytes.data.get(), bytes.size, XMLParseOptions(findings.splitsText), pugi::encoding_utf8);
  if (result) return AXMLFault();
  xml.reset();
  if (result.status == pugi::status_out_of_memory) throw std::bad_alloc();
  // The parser has written over the text, so the line is counted in a fresh copy.
  if (read(bytes) != nullptr) bytes.size = 0;
  return FaultAt(bytes.Text(), static_cast<std::size_t>(result.offset), result.description());
}

template <class Read>
int AXMLTree::loadBy(Read read) {
  removeAll(0);
  document_->fault = FileFault("out of memory", true);  // short enough to take none itself
  return OrOnNoMemory(0, [&] {
    document_->fault = document_->Load(read);
    return document_->fault.Reason.GetLength() == 0 ? 1 : 0;
  });
}

int AXMLTree::loadFromFile(AFilePath& path, int /*flag*/) {
  return loadBy([&](FileBytes& bytes) { return ReadFileBytes(path, bytes); });
}

int AXMLTree::loadFromFolder(const Descriptor& folder, const char* name) {
  return loadBy([&](FileBytes& bytes) { return ReadFileBytes(folder, name, bytes); });
}

const AXMLFault& AXMLTree::loadFault() const { return document_->fault; }

int AXMLTree::saveToFile(AFilePath& path) const {
  if (!whole_ || !document_->xml.document_element()) return 0;
  return OrOnNoMemory(0, [&] {
    SavedText saved;
    document_->xml.save(saved, "  ", pugi::format_indent | pugi::format_no_declaration,
                        pugi::encoding_utf8);
    return SaveFileBytes(path, saved.Text());
  });
}

void AXMLTree::removeAll(int) {
  document_->xml.reset();
  cursors_.clear();
  whole_ = true;
}

int AXMLTree::getRootNode(AXMLTreeNode& root) const {
  const pugi::xml_node element = document_->xml.document_element();
  if (!element) return 0;
  root = AXMLTreeNode(element.internal_object(), 0);
  return 1;
}

int AXMLTree::getItem(const char* name, AXMLTreeNode& item) const {
  AXMLTreeNode root;
  return getRootNode(root) != 0 ? getChild(name, root, item) : 0;
}

int AXMLTree::getChild(const char* name, AXMLTreeNode parent, AXMLTreeNode& child) const {
  const pugi::xml_node found = pugi::xml_node(parent.element_).child(OrEmpty(name));
  if (!found) return 0;
  child = AXMLTreeNode(found.internal_object(), parent.depth_ + 1);
  return 1;
}

int AXMLTree::getChild(int index, AXMLTreeNode parent, AXMLTreeNode& child) const {
  if (index < 0 || parent.element_ == nullptr) return 0;
  Cursor& cursor = cursorAt(parent.depth_);
  const bool goesOn = cursor.parent == parent.element_ && cursor.child != nullptr;
  if (!goesOn || index < cursor.index) {
    const pugi::xml_node first = ElementFrom(pugi::xml_node(parent.element_).first_child());
    cursor = {parent.element_, first.internal_object(), 0};
  }
  pugi::xml_node found(cursor.child);
  int at = cursor.index;
  for (; found && at < index; ++at) found = ElementFrom(found.next_sibling());
  if (!found) return 0;
  cursor.child = found.internal_object();
  cursor.index = at;
  child = AXMLTreeNode(cursor.child, parent.depth_ + 1);
  return 1;
}

AXMLTree::Cursor& AXMLTree::cursorAt(int depth) const {
  const auto place = static_cast<std::size_t>(depth);
  if (place >= cursors_.size()) cursors_.resize(place + 1);
  return cursors_[place];
}

int AXMLTree::getChildCount(AXMLTreeNode node) const {
  const auto children = pugi::xml_node(node.element_).children();
  return static_cast<int>(std::count_if(children.begin(), children.end(), IsElement));
}

AString AXMLTree::getName(AXMLTreeNode node) const { return pugi::xml_node(node.element_).name(); }

AString AXMLTree::getValue(AXMLTreeNode node) const {
  return OwnText(pugi::xml_node(node.element_));
}

AString AXMLTree::getAttribute(AXMLTreeNode node, const char* name) const {
  return attributeText(node, name);
}

int AXMLTree::getNext(const char* name, AXMLTreeNode& node) const {
  const pugi::xml_node next = pugi::xml_node(node.element_).next_sibling(OrEmpty(name));
  if (!next) return 0;
  node.element_ = next.internal_object();
  return 1;
}

const char* AXMLTree::attributeText(const AXMLTreeNode& node, const char* name) const {
  return pugi::xml_node(node.element_).attribute(OrEmpty(name)).value();
}

const char* AXMLTree::valueText(const AXMLTreeNode& node, AString& joined) const {
  const pugi::xml_node first = pugi::xml_node(node.element_).first_child();
  if (IsText(first) && !first.next_sibling()) return first.value();
  joined = getValue(node);
  return joined;
}

int AXMLTree::addItem(AXMLTreeNode& item, const char* name, const char* value) {
  AXMLTreeNode root;
  return getRootNode(root) != 0 ? addChild(item, root, name, value, -1) : 0;
}

int AXMLTree::addChild(AXMLTreeNode& child, AXMLTreeNode parent, const char* name,
                       const char* value, int /*position*/) {
  pugi::xml_node element(parent.element_);
  if (!element) return 0;
  pugi::xml_node added = element.append_child(pugi::node_element);
  const bool hasText = *OrEmpty(value) != '\0';
  if (!stored(added.set_name(OrEmpty(name)) &&
              (!hasText || added.append_child(pugi::node_pcdata).set_value(value)))) {
    element.remove_child(added);
    return 0;
  }
  child = AXMLTreeNode(added.internal_object(), parent.depth_ + 1);
  return 1;
}

void AXMLTree::setAttribute(AXMLTreeNode node, const char* name, const char* value) {
  pugi::xml_node element(node.element_);
  if (!element) return;
  pugi::xml_attribute attribute = element.attribute(OrEmpty(name));
  if (!attribute) attribute = element.append_attribute(OrEmpty(name));
  // Without memory for its name an attribute is there, but nameless.
  stored(*attribute.name() == *OrEmpty(name) && attribute.set_value(OrEmpty(value)));
}

bool AXMLTree::stored(bool success) {
  whole_ = whole_ && success;
  return success;
}
