#pragma once

// Whether the process lacked means for an operation on a file: memory, descriptors, or a path that
// the system takes. That says nothing of the file. To be asked when the operation has failed, with
// errno as it left it.

#include <cerrno>
#include <cstddef>
#include <new>
#include <string_view>

// What was lacking, as a sentence for people; null when it was nothing of that kind.
inline const char* NameOfLack() {
  switch (errno) {
    case ENOMEM:
      return "out of memory";
    case EMFILE:
      return "too many files are open";
    case ENFILE:
      return "the system has too many files open";
    case ENAMETOOLONG:
      return "the path is too long";
    default:
      return nullptr;
  }
}

inline bool LackedMeans() { return NameOfLack() != nullptr; }

// A bad_alloc that says what was lacking.
class LackOfMeans : public std::bad_alloc {
 public:
  // Keeps as much of the name as there is room for, so that it needs no memory.
  explicit LackOfMeans(std::string_view name) noexcept {
    name_[name.copy(name_, sizeof name_ - 1)] = '\0';
  }
  const char* what() const noexcept override { return name_; }

 private:
  char name_[64];
};

inline void ThrowIfWithoutMeans() {
  const char* name = NameOfLack();
  if (name != nullptr) throw LackOfMeans(name);
}
