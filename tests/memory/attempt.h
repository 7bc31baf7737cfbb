#pragma once

// An allocator that fails when it is told to, in place of that of the whole program and of the XML
// parser.

#include <functional>

// One run of an operation with little memory. What stands around it has plenty.
struct Attempt {
  void Try(const std::function<void()>& work);
  // The same with work that must answer 0 exactly when memory is refused.
  void Expect(const std::function<int()>& work);

  const long allowed;  // after so many allocations one fails
  const bool once;     // that one alone rather than all behind it as well
  bool refused = false;
  bool thrown = false;
};

// Repeats it with one allocation more each time, until it needs no more than it gets. Nothing may
// be thrown, nothing may leak, and nothing else of the test may have failed.
void WithEveryAllocation(const char* what, const std::function<void(Attempt&)>& attempt);
