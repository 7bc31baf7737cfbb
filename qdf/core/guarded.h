#pragma once

// How the operations of a document keep a lack of memory inside and remember it.

#include "qdf/core/apmqdf.h"
#include "qdf/support/nothrow.h"

template <class Result, class Work>
Result APMQDF::Guarded(Result failure, Work work) {
  bool done = false;
  Result result = OrOnNoMemory(std::move(failure), [&] {
    Result answer = work();
    done = true;
    return answer;
  });
  if (!done) LackedMemory = true;
  return result;
}
