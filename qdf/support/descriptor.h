#pragma once

// Descriptor closes a file or folder of the operating system when it goes.

#include <unistd.h>

#include <utility>

class Descriptor {
 public:
  Descriptor() = default;
  // Takes over what an open call gave, a negative number included.
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (IsOpen()) close(number_);
  }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

  // Gives the number away; whoever gets it closes it.
  int Release() { return std::exchange(number_, -1); }

 private:
  int number_ = -1;
};
