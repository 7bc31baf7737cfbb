// qdf write: loads a document and writes it again.

#include "tool/command.h"
#include "tool/writedocument.h"

namespace {

Answer Write(const Arguments& arguments) {
  const Document document = LoadDocument(arguments.Get("DOC"));
  Object report{{"document", "Document", document.path}};
  WriteDocument(document, arguments.Get("OUT"), report);
  return {report};
}

constexpr Option kOptions[] = {
    {"DOC", "", "The document", true},
    {"OUT", "", "The path of the file to write; a file that is there is replaced", true},
};

}  // namespace

const Command kWriteCommand = {
    "write",
    "Write a document and tell what its written form loses",
    "The written form holds less than a document may. Each kind of loss is told with the first of\n"
    "its kind. OUT may be the document itself, but not its translation table or custom media file.",
    "qdf write plot36.qdf written.qdf",
    kOptions,
    Write,
};
