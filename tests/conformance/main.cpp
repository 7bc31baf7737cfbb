// Holds the XML layer against a conformance suite for XML parsers:
//
//     apmqdf-conformance SUITE KNOWN
//
// SUITE is the folder with the suite's catalogues, KNOWN a page with a table of the documents that
// are told wrong, and why. Prints what differs from that, and fails then.
//
// Documents without a document type must be told right: the library reads no other files, checks
// nothing against a document type and takes names as any bytes. Those with one must only do no
// harm, which sanitizers see.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <pugixml.hpp>
#include <sstream>
#include <string>

#include "qdf/support/axmltree.h"

namespace {

namespace fs = std::filesystem;

std::string Bytes(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

// Version 1.1 and namespaces ask for more than a parser of version 1.0 does, and what an error is
// each parser may tell.
bool Counts(const pugi::xml_node& test, std::string document) {
  const std::string edition = test.attribute("RECOMMENDATION").as_string("XML1.0");
  std::erase(document, '\0');  // of two-byte encodings
  return edition.starts_with("XML1.0") && test.attribute("TYPE").value() != std::string("error") &&
         document.find("<!DOCTYPE") == std::string::npos;
}

bool IsAccepted(const fs::path& path) {
  AXMLTree tree("root");
  AFilePath file(path.c_str());
  return tree.loadFromFile(file, 1) != 0;
}

class Report {
 public:
  explicit Report(const std::string& known) : known_(known) {}

  void AddAll(const fs::path& catalogue) {
    pugi::xml_document tests;  // or a piece of one, with several roots
    if (!tests.load_file(catalogue.c_str(), pugi::parse_default | pugi::parse_fragment)) {
      Complain("no catalogue: " + catalogue.string());
    }
    for (const auto& found : tests.select_nodes("//TEST")) {
      Add(found.node(), catalogue.parent_path() / found.node().attribute("URI").value());
    }
  }

  int Finish() {
    std::ostringstream sum;
    sum << right_[1] << " of " << all_[1] << " well-formed ones are accepted, " << right_[0]
        << " of " << all_[0] << " others refused";
    std::cout << "without a document type: " << sum.str() << '\n';
    if (known_.find(sum.str()) == std::string::npos) Complain("the page tells other numbers");
    return complaints_ == 0 ? 0 : 1;
  }

 private:
  void Complain(const std::string& text) {
    ++complaints_;
    std::cout << text << '\n';
  }

  void Add(const pugi::xml_node& test, const fs::path& path) {
    if (!fs::is_regular_file(path)) return;
    const bool accepted = IsAccepted(path);
    if (!Counts(test, Bytes(path))) return;
    const bool wellFormed = test.attribute("TYPE").value() != std::string("not-wf");
    const bool right = accepted == wellFormed;
    ++all_[wellFormed ? 1 : 0];
    right_[wellFormed ? 1 : 0] += right ? 1 : 0;
    const std::string id = test.attribute("ID").value();
    const bool known = known_.find("| " + id + " |") != std::string::npos;
    if (known != right) return;
    Complain(id + (known ? " is listed and told right: " : " is told wrong and not listed: ") +
             path.string());
  }

  std::string known_;
  int all_[2] = {};  // of those that aren't well-formed, and of those that are
  int right_[2] = {};
  int complaints_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: apmqdf-conformance SUITE KNOWN\n";
    return 2;
  }
  Report report(Bytes(argv[2]));
  for (const auto& entry : fs::recursive_directory_iterator(argv[1])) {
    const bool isCatalogue = entry.path().extension() == ".xml" &&
                             Bytes(entry.path()).find("<TEST ") != std::string::npos;
    if (isCatalogue) report.AddAll(entry.path());
  }
  return report.Finish();
}
