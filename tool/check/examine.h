#pragma once

// The examination of a document: all that a reader refuses, drops, changes, hides or never uses of
// it, on a road through the file of its own, beside the reader.

#include <string>
#include <vector>

#include "tool/check/findings.h"

namespace check {

struct Choice {
  bool writeLoss = false;  // also what a write of the document loses
  bool hostFiles = false;  // also the files that it names
};

struct Examination {
  Source source;                  // of the file; empty when it can't be read
  std::vector<Finding> findings;  // in the order of the file
};

// Of what can't be looked at: one finding that says why, and what to do about it.
Examination Unreadable(std::string reason, std::string hint);

// A document without an error is one that the reader takes; without a warning it drops nothing.
Examination Examine(const std::string& path, const Choice& choice = {});

}  // namespace check
