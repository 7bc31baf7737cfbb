#include "qdf/support/savebytes.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace {

// The file to be saved to, opened if it is there and made otherwise.
class Target {
 public:
  explicit Target(const char* path) : path_(path) {
    // Non-blocking and without a controlling terminal: what stands there may be no regular file.
    constexpr int kFlags = O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    constexpr mode_t kForAllWhomTheMaskAllows = 0666;
    number_ = open(path, kFlags);
    if (number_ >= 0 || errno != ENOENT) return;
    number_ = open(path, kFlags | O_CREAT | O_EXCL, kForAllWhomTheMaskAllows);
    made_ = number_ >= 0;
  }
  ~Target() { Close(); }
  Target(const Target&) = delete;
  Target& operator=(const Target&) = delete;

  int Number() const { return number_; }

  // Some file systems tell only now that they couldn't store what was written.
  bool Close() {
    if (number_ < 0) return true;
    const int result = close(number_);
    number_ = -1;
    return result == 0 || errno == EINTR;
  }

  void RemoveIfMade() const {
    if (made_) unlink(path_);
  }

 private:
  const char* path_;
  int number_ = -1;
  bool made_ = false;
};

// Beyond this limit a write would send a signal that ends the host.
bool IsWithinSizeLimit(std::size_t size) {
  rlimit limit{};
  return getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY ||
         size <= limit.rlim_cur;
}

bool WriteAt(int file, std::size_t offset, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t put = pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(offset));
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(put));
    offset += static_cast<std::size_t>(put);
  }
  return true;
}

bool SetSize(int file, std::size_t size) {
  int result = 0;
  do {
    result = ftruncate(file, static_cast<off_t>(size));
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

// Takes the room for the whole file, whose former content may have holes. False when there is none;
// a file system that can't tell shows it while the file is written.
bool ReserveRoom(int file, std::size_t size) {
  if (size == 0) return true;
  int result = 0;
  do {
    result = fallocate(file, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size));
  } while (result != 0 && errno == EINTR);
  return result == 0 || (errno != ENOSPC && errno != EDQUOT);
}

// What reaches beyond the former end goes first: where no room could be reserved, it is the part
// that needs some, and when there is none the former content is still untouched.
bool ReplaceContent(int file, std::string_view bytes) {
  struct stat status {};
  if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) return false;
  const auto formerSize = static_cast<std::size_t>(status.st_size);
  const std::size_t shared = std::min(formerSize, bytes.size());
  if (!ReserveRoom(file, bytes.size()) || !WriteAt(file, shared, bytes.substr(shared))) {
    SetSize(file, formerSize);
    return false;
  }
  return WriteAt(file, 0, bytes.substr(0, shared)) &&
         (bytes.size() >= formerSize || SetSize(file, bytes.size()));
}

}  // namespace

int SaveFileBytes(const char* path, std::string_view bytes) {
  if (!IsWithinSizeLimit(bytes.size())) return 0;
  Target target(path);
  if (target.Number() < 0) return 0;
  const bool replaced = ReplaceContent(target.Number(), bytes);
  if (target.Close() && replaced) return 1;
  target.RemoveIfMade();
  return 0;
}
