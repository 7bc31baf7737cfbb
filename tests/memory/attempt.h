#pragma once

// An allocator that fails when it is told to, in place of that of the whole program and of the XML
// parser.

#include <functional>
#include <type_traits>

// One run of an operation with little memory. What stands around Try has plenty.
class Attempt {
 public:
  // After so many allocations one fails: that one alone, or all behind it as well.
  Attempt(long allowed, bool once) : allowed_(allowed), once_(once) {}

  // What the work answers, 0 when that is nothing.
  template <class Work>
  int Try(Work work) {
    int result = 0;
    Begin();
    try {
      if constexpr (std::is_void_v<decltype(work())>) {
        work();
      } else {
        result = work();
      }
    } catch (...) {
      thrown_ = true;
    }
    End();
    return result;
  }

  // The same, and whether it is 0 exactly when memory was refused.
  template <class Work>
  bool FailsWhenRefused(Work work) {
    const int result = Try(work);
    return (result == 0) == refused_;
  }

  bool Refused() const { return refused_; }
  bool Thrown() const { return thrown_; }

 private:
  void Begin();
  void End();

  long allowed_;
  bool once_;
  bool refused_ = false;
  bool thrown_ = false;
};

// Repeats it with one allocation more each time, until it needs no more than it gets. Nothing may
// be thrown, nothing may leak, and nothing else of the test may have failed.
void WithEveryAllocation(const char* what, const std::function<void(Attempt&)>& attempt);
