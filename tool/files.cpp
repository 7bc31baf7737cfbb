#include "tool/files.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "qdf/support/filebytes.h"
#include "qdf/support/lackofmeans.h"
#include "qdf/support/savebytes.h"
#include "tool/failure.h"

namespace {

constexpr const char* kNoRoom = "there is no room for it";
constexpr const char* kNotRegular = "it is no regular file";

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

// Why a file that isn't there couldn't be made.
const char* WhyNotMade(const std::string& path) {
  struct stat status {};
  const std::string folder = FolderOf(path);
  if (lstat(path.c_str(), &status) == 0) return "the link leads nowhere";
  if (stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
    return "its folder isn't there";
  if (access(folder.c_str(), W_OK) != 0) return "no permission to write into its folder";
  return kNoRoom;
}

// Why a document has no written form, of which so many bytes were made.
std::string WhyNotFormed(const char* unreadable, std::size_t size) {
  if (unreadable != nullptr) return unreadable;
  if (size > 0) return "what would be written can't be loaded";
  rlimit limit{};
  const bool isLimited = getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
  return isLimited ? kNoRoom : "out of memory";
}

class MemoryFile {
 public:
  // Throws what the system was lacking for one.
  MemoryFile() : number_(memfd_create("document", MFD_CLOEXEC)) {
    if (number_ >= 0) return;
    ThrowIfWithoutMeans();
    throw Failure(kNoAnswer, std::string("no file in memory: ") + std::strerror(errno));
  }
  ~MemoryFile() { close(number_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::string Path() const { return "/proc/self/fd/" + std::to_string(number_); }

 private:
  int number_;
};

}  // namespace

bool Exists(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0;
}

bool IsSameFile(const std::string& path, const std::string& other) {
  struct stat one {};
  struct stat two {};
  return stat(path.c_str(), &one) == 0 && stat(other.c_str(), &two) == 0 &&
         one.st_dev == two.st_dev && one.st_ino == two.st_ino;
}

void RequireFolder(const std::string& path) {
  if (path.empty()) throw Failure(kWrongUsage, "the name of the folder is empty");
  struct stat status {};
  const char* fault = nullptr;
  if (stat(path.c_str(), &status) != 0) {
    fault = "no such folder";
  } else if (!S_ISDIR(status.st_mode)) {
    fault = "it is no folder";
  } else if (access(path.c_str(), R_OK | X_OK) != 0) {
    fault = "no permission to search it";
  }
  if (fault != nullptr) throw Failure(kNoAnswer, path + ": " + fault);
}

std::string ResolveFolder(const std::string& path) {
  RequireFolder(path);
  const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr),
                                                             &std::free);
  if (resolved == nullptr) throw Failure(kNoAnswer, path + ": " + std::strerror(errno));
  return resolved.get();
}

std::string ReadWhole(const std::string& path) {
  FileBytes bytes;
  const char* fault = ReadFileBytes(path.c_str(), bytes);
  if (fault != nullptr) throw Failure(kNoAnswer, path + ": " + fault);
  return std::string(bytes.Text());
}

void SaveWhole(const std::string& path, std::string_view bytes) {
  if (SaveFileBytes(path.c_str(), bytes) != 0) return;
  throw Failure(kNoAnswer, path + ": it can't be saved: " + WhyNotSaved(path));
}

std::string WhyNotSaved(const std::string& path) {
  const int file = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  const int error = errno;
  if (file >= 0) {
    struct stat status {};
    const bool isRegular = fstat(file, &status) == 0 && S_ISREG(status.st_mode);
    close(file);
    return isRegular ? kNoRoom : kNotRegular;
  }
  switch (error) {
    case ENOENT:
      return WhyNotMade(path);
    case EACCES:
    case EPERM:
      return "no permission to write it";
    case EISDIR:
      return "it is a folder";
    case ENOTDIR:
      return "its folder isn't there";
    case ENXIO:
      return kNotRegular;
    default:
      return std::strerror(error);
  }
}

WrittenForm MakeWrittenForm(APMQDF& document, const std::string& path) {
  const MemoryFile file;
  AFilePath memory(file.Path().c_str());
  document.PMWriteQDF(memory);
  FileBytes bytes;
  const char* fault = ReadFileBytes(memory, bytes);
  APMQDF* loaded = nullptr;
  PMGetQDFInterface(memory, &loaded);
  WrittenForm written{{}, std::unique_ptr<APMQDF>(loaded)};
  if (fault != nullptr || loaded == nullptr) {
    throw Failure(kNoAnswer, path + ": it can't be saved: " + WhyNotFormed(fault, bytes.size));
  }
  written.bytes = bytes.Text();
  return written;
}
