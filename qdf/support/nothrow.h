#pragma once

// Keeps a failed allocation inside the library: whatever runs out of memory gives the operation's
// own failure result.

#include <new>
#include <stdexcept>

// The answer of `work`, or `failure` when memory ran out or a text or list outgrew every container.
template <class Result, class Work>
Result OrOnNoMemory(Result failure, Work work) {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    return failure;
  } catch (const std::length_error&) {
    return failure;
  }
}
