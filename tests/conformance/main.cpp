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

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <pugixml.hpp>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "qdf/support/axmltree.h"

namespace {

namespace fs = std::filesystem;

std::string Bytes(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

struct Case {
  std::string id;
  std::string type;  // valid, invalid, not-wf or error
  std::string edition;
  fs::path path;
};

void CollectFrom(const pugi::xml_node& node, const fs::path& folder, std::vector<Case>& cases) {
  for (const pugi::xml_node child : node.children()) {
    if (std::string(child.name()) == "TEST") {
      const char* edition = child.attribute("RECOMMENDATION").as_string("XML1.0");
      cases.push_back({child.attribute("ID").value(), child.attribute("TYPE").value(), edition,
                       folder / child.attribute("URI").value()});
    } else {
      CollectFrom(child, folder, cases);
    }
  }
}

std::vector<Case> Collect(const fs::path& suite) {
  std::vector<Case> cases;
  for (const auto& entry : fs::recursive_directory_iterator(suite)) {
    if (entry.path().extension() != ".xml") continue;
    pugi::xml_document catalogue;
    // Some catalogues are pieces, with several roots.
    if (Bytes(entry.path()).find("<TEST ") == std::string::npos) continue;
    catalogue.load_file(entry.path().c_str(), pugi::parse_default | pugi::parse_fragment);
    CollectFrom(catalogue, entry.path().parent_path(), cases);
  }
  std::sort(cases.begin(), cases.end(), [](const Case& a, const Case& b) { return a.id < b.id; });
  return cases;
}

// Version 1.1 and namespaces ask for more than a parser of version 1.0 does.
bool IsOfVersion10(const Case& one) { return one.edition.rfind("XML1.0", 0) == 0; }

bool HasDocumentType(const std::string& text) {
  std::string plain = text;
  std::erase(plain, '\0');  // of two-byte encodings
  return plain.find("<!DOCTYPE") != std::string::npos;
}

bool IsAccepted(const Case& one) {
  AXMLTree tree("root");
  AFilePath path(one.path.c_str());
  return tree.loadFromFile(path, 1) != 0;
}

class Report {
 public:
  explicit Report(const std::string& known) : known_(known) {}

  void Add(const Case& one, bool accepted) {
    if (one.type == "error") return;
    const bool wellFormed = one.type != "not-wf";
    Count& count = wellFormed ? wellFormed_ : malformed_;
    const bool right = accepted == wellFormed;
    ++count.all;
    if (right) ++count.right;
    const bool known = known_.find("| " + one.id + " |") != std::string::npos;
    if (known == right) {
      Complain(one, known ? "is listed and told right" : "is told wrong and not listed");
    }
  }

  int Finish() const {
    std::cout << "without a document type: of " << wellFormed_.all << " well-formed documents "
              << wellFormed_.right << " are accepted, of " << malformed_.all << " others "
              << malformed_.right << " are refused\n";
    return complaints_ == 0 && wellFormed_.all > 0 && malformed_.all > 0 ? 0 : 1;
  }

 private:
  struct Count {
    int all = 0;
    int right = 0;
  };

  void Complain(const Case& one, const char* what) {
    ++complaints_;
    std::cout << one.id << ' ' << what << ": " << one.path.c_str() << '\n';
  }

  std::string known_;
  Count wellFormed_;
  Count malformed_;
  int complaints_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: apmqdf-conformance SUITE KNOWN\n";
    return 2;
  }
  Report report(Bytes(argv[2]));
  for (const Case& one : Collect(argv[1])) {
    if (!fs::is_regular_file(one.path)) continue;
    const bool accepted = IsAccepted(one);
    if (IsOfVersion10(one) && !HasDocumentType(Bytes(one.path))) report.Add(one, accepted);
  }
  return report.Finish();
}
