#include "bench/enlarge.h"

#include <algorithm>
#include <pugixml.hpp>
#include <sstream>
#include <vector>

namespace {

std::vector<pugi::xml_node> Children(const pugi::xml_node& parent, const char* name) {
  const auto children = parent.children(name);
  return {children.begin(), children.end()};
}

void AddSuffix(pugi::xml_attribute attribute, const std::string& suffix) {
  if (attribute) attribute.set_value((attribute.value() + suffix).c_str());
}

void AddSuffix(pugi::xml_text text, const std::string& suffix) {
  if (text) text.set((text.get() + suffix).c_str());
}

// The names that a medium's part of the tree holds become its own.
void Rename(const pugi::xml_node& parent, const std::string& suffix) {
  for (const pugi::xml_node child : parent.children()) {
    AddSuffix(child.attribute("DefaultICCProfile"), suffix);
    AddSuffix(child.attribute("DefaultDither"), suffix);
    AddSuffix(child.attribute("Name"), suffix);
    if (std::string(child.name()) == "ICCProfile") AddSuffix(child.text(), suffix);
    Rename(child, suffix);
  }
}

class Copier {
 public:
  explicit Copier(pugi::xml_node root)
      : mediaList_(root.child("Definition").child("MediaList")),
        media_(Children(mediaList_, "MediaDef")) {
    for (const pugi::xml_node medium : media_) {
      idStep_ = std::max(idStep_, medium.child("ID").text().as_int() + 1);
    }
    for (const pugi::xml_node ink : Children(root.child("Control_Definition"), "Ink")) {
      for (const pugi::xml_node node : Children(ink, "Media")) nodes_.push_back(node);
    }
  }

  void Copy(int copy) {
    std::string suffix = std::to_string(copy);
    suffix.insert(suffix.begin(), ' ');
    for (const pugi::xml_node medium : media_) {
      pugi::xml_node added = mediaList_.append_copy(medium);
      MoveID(added.child("ID").text(), copy);
      AddSuffix(added.child("InternalName").text(), suffix);
      AddSuffix(added.child("DisplayName").text(), suffix);
    }
    for (const pugi::xml_node node : nodes_) {
      if (!IsNumber(node.attribute("ID").value())) continue;
      pugi::xml_node added = node.parent().append_copy(node);
      MoveID(added.attribute("ID"), copy);
      Rename(added, suffix);
    }
  }

 private:
  static bool IsNumber(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
  }

  template <class Value>
  void MoveID(Value value, int copy) const {
    if (value) value = value.as_int() + copy * idStep_;
  }

  pugi::xml_node mediaList_;
  std::vector<pugi::xml_node> media_;
  std::vector<pugi::xml_node> nodes_;
  int idStep_ = 1;
};

}  // namespace

std::string EnlargedDocument(const std::string& path, int times) {
  pugi::xml_document document;
  if (!document.load_file(path.c_str())) return "";
  Copier copier(document.document_element());
  for (int copy = 1; copy < times; ++copy) copier.Copy(copy);
  std::ostringstream text;
  document.save(text, "  ");
  return text.str();
}
