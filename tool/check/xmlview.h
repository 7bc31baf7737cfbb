#pragma once

// A document's XML with the place in the file of everything that it holds. It takes and refuses the
// same files as AXMLTree, and elements have the same texts.

#include <cstddef>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace check {

// A stretch of the file's bytes.
struct Place {
  std::size_t begin = 0;
  std::size_t length = 0;
};

// Both count from 1, columns in bytes.
struct Position {
  int line = 1;
  int column = 1;
};

// The bytes of a file as they stand there.
class Source {
 public:
  Source() = default;
  explicit Source(std::string_view text);

  std::string_view Text() const { return text_; }
  std::string_view At(Place place) const { return Text().substr(place.begin, place.length); }
  Position PositionOf(std::size_t offset) const;
  // Without its line break.
  std::string_view Line(int line) const;

 private:
  std::string text_;
  std::vector<std::size_t> lines_;  // where each begins
};

// A handle, false when there is no such attribute; its value is then empty and stands nowhere. The
// places of values are those of what stands in the file, which is longer than the value where that
// has references.
class Attribute {
 public:
  Attribute() = default;
  Attribute(pugi::xml_attribute attribute, const char* buffer, const Source* source)
      : attribute_(attribute), buffer_(buffer), source_(source) {}

  explicit operator bool() const { return static_cast<bool>(attribute_); }
  const char* Name() const { return attribute_.name(); }
  const char* Value() const { return attribute_.value(); }
  Place NamePlace() const;
  Place ValuePlace() const;
  // Of a part of the value; of the whole where the file spells it in another way.
  Place PlaceOf(std::string_view part) const;
  Attribute Next() const { return {attribute_.next_attribute(), buffer_, source_}; }

 private:
  pugi::xml_attribute attribute_;
  const char* buffer_ = nullptr;
  const Source* source_ = nullptr;
};

// A handle, false when there is no such element. The view must outlive it.
class Element {
 public:
  Element() = default;
  Element(pugi::xml_node node, const Source* source) : node_(node), source_(source) {}

  explicit operator bool() const { return static_cast<bool>(node_); }
  bool operator==(const Element& other) const { return node_ == other.node_; }
  const void* Identity() const { return node_.internal_object(); }

  const char* Name() const { return node_.name(); }
  Place NamePlace() const;
  // None for the root.
  Element Parent() const;

  // Going through child elements: all of them, or those of one name.
  Element First() const;
  Element Next() const;
  Element First(const char* name) const;
  Element Next(const char* name) const;

  Attribute Find(const char* name) const { return Wrap(node_.attribute(name)); }
  Attribute FirstAttribute() const { return Wrap(node_.first_attribute()); }

  // Its character data joined, as the reader sees it.
  std::string Text() const;
  // Of the first text that isn't white space only, of the element's name when there is none.
  Place TextPlace() const;
  bool HasText() const { return static_cast<bool>(FirstText()); }

  // The number of elements under it, at any depth.
  std::size_t CountUnder() const;

 private:
  Attribute Wrap(pugi::xml_attribute attribute) const;
  const char* Buffer() const { return node_.name() - node_.offset_debug(); }
  pugi::xml_node FirstText() const;

  pugi::xml_node node_;
  const Source* source_ = nullptr;
};

class XMLView {
 public:
  // Why a file can't be taken; the reason is null when it can.
  struct Fault {
    const char* reason = nullptr;
    bool unreadable = false;  // otherwise it isn't well formed, and the offset says where
    std::size_t offset = 0;
  };

  XMLView();
  ~XMLView();
  XMLView(const XMLView&) = delete;
  XMLView& operator=(const XMLView&) = delete;

  Fault Load(const char* path);

  const Source& Bytes() const { return source_; }
  Element Root() const;
  // Comments, processing instructions and the document type, wherever they stand.
  std::vector<Place> Asides() const;

 private:
  struct Document;

  Source source_;
  std::unique_ptr<Document> document_;
};

}  // namespace check
