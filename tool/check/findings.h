#pragma once

// What an examination found in one document.

#include <string>
#include <string_view>
#include <vector>

#include "tool/check/codes.h"
#include "tool/check/elementpaths.h"
#include "tool/check/xmlview.h"

namespace check {

// Texts may hold any bytes that the document holds.
struct Finding {
  const Rule* rule = nullptr;
  bool placed = false;  // whether there is a place in the file to speak of
  Place place;
  Position position;
  std::string path;     // of the element
  std::string message;  // a sentence without its full stop
  std::string hint;     // what to do about it, without a full stop as well
};

// A text or name for a message, shortened when it is long.
std::string Brief(std::string_view text);

// The same in quotation marks.
std::string Quote(std::string_view text);

// "3 elements", "1 element".
std::string Count(std::size_t number, const std::string& noun);

// Collects findings. The source must outlive it.
class Findings {
 public:
  explicit Findings(const Source& source) : source_(source) {}

  void Add(Code code, const Element& element, Place place, std::string message, std::string hint);
  // At the element's name.
  void Add(Code code, const Element& element, std::string message, std::string hint) {
    Add(code, element, element.NamePlace(), std::move(message), std::move(hint));
  }
  void AddAt(Code code, Place place, std::string message, std::string hint);
  void AddUnplaced(Code code, std::string message, std::string hint);

  // "line 12", for messages that point to another place.
  std::string LineOf(const Element& element) const;

  // Those found so far, in the order of the file; empties the collection.
  std::vector<Finding> Take();

 private:
  const Source& source_;
  std::vector<Finding> findings_;
  ElementPaths paths_;
};

}  // namespace check
