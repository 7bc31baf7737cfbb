// The files that the document names, which lie in the folder of the document.

#include "qdf/support/afilepath.h"
#include "tool/check/rules.h"
#include "tool/check/values.h"

namespace check {

namespace {

bool IsBare(const std::string& name) {
  return name.find_first_of("/\\:") == std::string::npos && name != "." && name != "..";
}

bool IsFile(const std::string& path) {
  AFilePath file(path.c_str());
  return file.exists() != 0 && file.isDirectory() == 0;
}

}  // namespace

void CheckHostFiles(const XMLView& document, const std::string& documentPath, Findings& findings) {
  const std::string folder = documentPath.substr(0, documentPath.rfind('/') + 1);
  const Element definition = document.Root().First("Definition");
  for (const Code code : {Code::kTableMissing, Code::kCustomMediaMissing}) {
    const bool isTable = code == Code::kTableMissing;
    const Element element = definition.First(isTable ? "TranslationTable" : "CustomMediaFile");
    const Given name = GivenText(element);
    if (name.text.empty()) continue;
    if (!IsBare(name.text)) {
      findings.Add(Code::kFileNameNotBare, element, name.place,
                   name.name + ' ' + Quote(name.text) + " is more than the bare name of a file",
                   "name a file in the folder of the document");
    } else if (!IsFile(folder + name.text)) {
      findings.Add(code, element, name.place,
                   "there is no file " + Quote(name.text) + " beside the document",
                   isTable ? "put the translation table there, or correct the name"
                           : "it is made when custom media are saved; until then this is fine");
    }
  }
}

}  // namespace check
