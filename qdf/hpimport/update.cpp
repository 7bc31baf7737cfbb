#include "qdf/hpimport/update.h"

#include <memory>

#include "qdf/hpimport/updateddocument.h"
#include "qdf/support/filestatus.h"
#include "qdf/support/nothrow.h"

namespace {

// For as long as it lives a read-only file can be written.
class Writable {
 public:
  explicit Writable(const char* path) : path_(path) {
    lifted_ = ReadFileStatus(path, former_) && former_.IsReadOnly();
    if (!lifted_) return;
    FileStatus writable = former_;
    writable.mode |= S_IWUSR;
    WriteFileStatus(path, writable);
  }
  ~Writable() {
    if (lifted_) WriteFileStatus(path_, former_);
  }
  Writable(const Writable&) = delete;
  Writable& operator=(const Writable&) = delete;

 private:
  const char* path_;
  FileStatus former_{};
  bool lifted_;
};

}  // namespace

void PMUpdateQDF(AFilePath documentPath, AFilePath resourceFolder) {
  OrOnNoMemory(0, [&] {
    AString name;
    documentPath.getFileName(name);
    APMQDF* previous = nullptr;
    PMGetQDFInterfaceFromName(name, &previous);
    const std::unique_ptr<APMQDF> owner(previous);
    const UpdatedDocument updated = DeriveUpdatedDocument(previous, resourceFolder);
    if (updated.document == nullptr) return 0;
    const Writable lifted(documentPath);
    updated.document->PMWriteQDF(documentPath);
    return 1;
  });
}
