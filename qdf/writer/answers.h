#pragma once

// How the writer asks the document.

#include <cerrno>
#include <new>

// The answer to a question. One that is empty because memory ran out ends the writing with
// bad_alloc: it would make a document that lacks what it should hold.
template <class Question>
auto AnswerTo(Question question) {
  const int former = errno;
  errno = 0;
  auto answer = question();
  if (errno == ENOMEM) throw std::bad_alloc();
  errno = former;
  return answer;
}
