#pragma once

// The elements and attributes that a reader looks for, and where.

#include <deque>
#include <string_view>
#include <vector>

namespace check {

// What is looked for in an element.
struct Form {
  struct Child {
    std::string_view name;
    bool eachTime = false;       // otherwise only the first of this name counts
    const Form* form = nullptr;  // null for an element of which only the text is read
  };

  std::string_view name;
  std::vector<Child> children;
  std::vector<std::string_view> attributes;
  // The children are entries, which are read under any name; there is one form for all of them.
  bool hasEntries = false;

  // Null when nobody looks for a child of that name.
  const Child* Find(std::string_view childName) const;
};

class Grammar {
 public:
  Grammar();

  // Of the root element, which is read under any name.
  const Form& Root() const { return forms_.front(); }

  // The names of all elements in which an element of that name is read.
  std::vector<std::string_view> ParentsOf(std::string_view name) const;

 private:
  std::deque<Form> forms_;
};

}  // namespace check
